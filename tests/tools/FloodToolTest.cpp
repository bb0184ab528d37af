#include "tools/ToolsFixture.h"

namespace {

// Pictures of the top-left corner of a 16 x 16 icon, '/' between rows:
// '.' transparent, 'k' opaque black, 'g' green, 'r' red, 'b' blue, 'i'
// inverting red. The rest of the icon is transparent.
class FloodToolTest : public ToolsFixture {
  protected:
    struct Look {
        char letter;
        Colour colour, mask;
    };
    static constexpr Look kLooks[] = {{'.', kBlack, kWhite}, {'k', kBlack, kBlack},
                                      {'g', kGreen, kBlack}, {'r', kRed, kBlack},
                                      {'b', kBlue, kBlack},  {'i', kRed, kWhite}};

    void draw(const char* picture) {
        startWithSize(0);
        editor->tools.chooseTool(DrawingTools::Flood);
        const auto rows = rowsOf(picture);
        for (int y = 0; y < static_cast<int>(rows.size()); ++y)
            for (int x = 0; x < static_cast<int>(rows[y].size()); ++x)
                for (const Look& look : kLooks)
                    if (look.letter == rows[y][x])
                        setPixel(x, y, look.colour, look.mask);
        editor->refresh();
    }

    // The planes over the rows and columns of `like`, in the same letters.
    std::string picture(const char* like) const {
        const auto rows = rowsOf(like);
        std::string out;
        for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
            if (y > 0)
                out += '/';
            for (int x = 0; x < static_cast<int>(rows[y].size()); ++x) {
                char letter = '?';
                for (const Look& look : kLooks)
                    if (pixelAt(x, y) == std::make_pair(look.colour, look.mask))
                        letter = look.letter;
                out += letter;
            }
        }
        return out;
    }
};

TEST_F(FloodToolTest, FillsTheRegionSharingMaskAndColour) {
    const auto blue = static_cast<std::int32_t>(kBlue);
    const struct {
        const char* what;
        const char* before;
        int x, y, button;
        std::int32_t colour;
        const char* after;
    } cases[] = {
        // clang-format off
        {"inside a ring", "gggg/g..g/g..g/gggg", 1, 1, 1, blue, "gggg/gbbg/gbbg/gggg"},
        {"the ring, right button", "gggg/g..g/g..g/gggg", 0, 0, 2, blue, "bbbb/b..b/b..b/bbbb"},
        {"opaque black beside transparent", "..k./..k./kkk.", 0, 0, 1, blue, "bbk./bbk./kkk."},
        {"inverting red beside opaque red", "rri/rir/rrr", 0, 0, 1, blue, "bbi/bib/bbb"},
        {"only 4-connected", "kggg/gkgg/gggg", 0, 0, 1, blue, "bggg/gkgg/gggg"},
        {"transparent fill", "ggk/gkk/kkg", 0, 0, 1, kTransparentColour, "..k/.kk/kkg"},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        draw(c.before);
        editor->colours.value[c.button - 1] = c.colour;
        // The fill is done at mouse-down; mouse-up only records it.
        press(c.button, at(c.x), at(c.y));
        EXPECT_EQ(picture(c.after), c.after);
        EXPECT_TRUE(editor->doc.modified);
        release(c.button, at(c.x), at(c.y));
        EXPECT_EQ(picture(c.after), c.after);
        EXPECT_EQ(editor->undoRedo.UndoStack.size(), 2u);
    }
}

TEST_F(FloodToolTest, FloodOfTheEmptyIconCoversEveryPixelAndTheViews) {
    startWithSize(2);
    editor->tools.chooseTool(DrawingTools::Flood);
    editor->colours.value[0] = static_cast<std::int32_t>(kRed);
    click(1, 47, 47);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x)
            ASSERT_EQ(pixelAt(x, y), std::make_pair(kRed, kBlack)) << x << ", " << y;
    EXPECT_EQ(editor->canvas.PicMain.pixel(47 * 8 + 4, 47 * 8 + 4), kRed);
    EXPECT_EQ(editor->canvas.PicIcon.pixel(0, 0), kRed);
}

TEST_F(FloodToolTest, PressOnTheClosingGridLineChangesNothing) {
    draw("gg/.g");
    editor->doc.modified = false;
    press(1, 384, 384); // zoom 24: pixel 16, past the last
    release(1, 384, 384);
    EXPECT_EQ(picture("gg/.g/.."), "gg/.g/..");
    EXPECT_EQ(pixelAt(15, 15), std::make_pair(kBlack, kWhite));
    EXPECT_FALSE(editor->doc.modified);
}

// A marker colour that an inverting pixel already holds would make that pixel
// look like part of the region: the search must pass it over.
TEST_F(FloodToolTest, MarkerNeverMatchesAColourOfTheIcon) {
    const Colour taken = editor->pickers.PicPal.pixel(30, 100);
    draw("...");
    setPixel(1, 0, taken, kWhite);
    editor->refresh();
    // Random numbers landing first on chart pixel (30, 100), then on (20, 200).
    const double numbers[] = {30.5 / 51, 100.5 / 335, 20.5 / 51, 200.5 / 335};
    std::size_t next = 0;
    editor->services.random = [&] { return numbers[next++ % 4]; };
    editor->colours.value[0] = static_cast<std::int32_t>(kBlue);
    click(1, 0, 0);
    EXPECT_EQ(next, 4u);
    EXPECT_EQ(pixelAt(1, 0), std::make_pair(taken, kWhite));
    EXPECT_EQ(picture("b"), "b");
    EXPECT_EQ(pixelAt(2, 0), std::make_pair(kBlue, kBlack));
}

// A generator that only ever points at the chart's black column can never
// give a marker; the fill must still finish, letting events run meanwhile.
TEST_F(FloodToolTest, StuckGeneratorStillFinishes) {
    draw("gg./g..");
    int eventsRun = 0;
    editor->services.random = [] { return 0.0; };
    editor->services.processEvents = [&] { ++eventsRun; };
    editor->colours.value[0] = static_cast<std::int32_t>(kRed);
    click(1, 0, 0);
    EXPECT_GT(eventsRun, 0);
    EXPECT_EQ(picture("rr./r.."), "rr./r..");
}

} // namespace
