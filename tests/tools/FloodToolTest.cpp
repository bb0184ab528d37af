#include "tools/ToolsFixture.h"

namespace {

class FloodToolTest : public ToolsFixture {
  protected:
    FloodToolTest() { editor->tools.chooseTool(DrawingTools::Flood); }

    // A 16 x 16 icon drawn from a picture: '.' transparent, 'k' opaque black,
    // 'g' opaque green, 'r' opaque red, 'i' inverting red.
    void draw(const std::vector<std::string>& picture) {
        startWithSize(0);
        editor->tools.chooseTool(DrawingTools::Flood);
        for (int y = 0; y < static_cast<int>(picture.size()); ++y)
            for (int x = 0; x < static_cast<int>(picture[y].size()); ++x) {
                switch (picture[y][x]) {
                case 'k':
                    setPixel(x, y, kBlack, kBlack);
                    break;
                case 'g':
                    setPixel(x, y, kGreen, kBlack);
                    break;
                case 'r':
                    setPixel(x, y, kRed, kBlack);
                    break;
                case 'i':
                    setPixel(x, y, kRed, kWhite);
                    break;
                default:
                    break;
                }
            }
        editor->refresh();
    }

    // The planes as the same letters, with 'b' for opaque blue.
    std::vector<std::string> picture(int rows, int columns) const {
        std::vector<std::string> out;
        for (int y = 0; y < rows; ++y) {
            std::string row;
            for (int x = 0; x < columns; ++x) {
                const auto [colour, mask] = pixelAt(x, y);
                char c = '?';
                if (mask == kWhite)
                    c = colour == kBlack ? '.' : colour == kRed ? 'i' : '?';
                else
                    c = colour == kBlack   ? 'k'
                        : colour == kGreen ? 'g'
                        : colour == kRed   ? 'r'
                        : colour == kBlue  ? 'b'
                                           : '?';
                row += c;
            }
            out.push_back(row);
        }
        return out;
    }
};

using Picture = std::vector<std::string>;

TEST_F(FloodToolTest, FillsTheRegionSharingMaskAndColour) {
    const struct {
        const char* what;
        Picture before;
        int x, y;
        int button;
        std::int32_t colour;
        Picture after;
    } cases[] = {
        {"inside a ring",
         {"gggg", "g..g", "g..g", "gggg"},
         1,
         1,
         1,
         static_cast<std::int32_t>(kBlue),
         {"gggg", "gbbg", "gbbg", "gggg"}},
        {"the ring itself, right button",
         {"gggg", "g..g", "g..g", "gggg"},
         0,
         0,
         2,
         static_cast<std::int32_t>(kBlue),
         {"bbbb", "b..b", "b..b", "bbbb"}},
        {"opaque black beside transparent black does not join",
         {"..k.", "..k.", "kkk."},
         0,
         0,
         1,
         static_cast<std::int32_t>(kBlue),
         {"bbk.", "bbk.", "kkk."}},
        {"inverting red beside opaque red does not join",
         {"rri", "rir", "rrr"},
         0,
         0,
         1,
         static_cast<std::int32_t>(kBlue),
         {"bbi", "bib", "bbb"}},
        {"only 4-connected",
         {"kggg", "gkgg", "gggg"},
         0,
         0,
         1,
         static_cast<std::int32_t>(kBlue),
         {"bggg", "gkgg", "gggg"}},
        {"transparent fill",
         {"ggk", "gkk", "kkg"},
         0,
         0,
         1,
         kTransparentColour,
         {"..k", ".kk", "kkg"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        draw(c.before);
        editor->colours.value[c.button - 1] = c.colour;
        const int rows = static_cast<int>(c.after.size());
        const int columns = static_cast<int>(c.after[0].size());
        // The fill is done at mouse-down; mouse-up only records it.
        press(c.button, at(c.x), at(c.y));
        EXPECT_EQ(picture(rows, columns), c.after);
        EXPECT_TRUE(editor->doc.modified);
        release(c.button, at(c.x), at(c.y));
        EXPECT_EQ(picture(rows, columns), c.after);
        EXPECT_EQ(editor->undoRedo.UndoStack.size(), 2u);
    }
}

TEST_F(FloodToolTest, FloodOfTheEmptyIconCoversEveryPixelAndTheCanvas) {
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
    const Plane image = editor->doc.PicImage, mask = editor->doc.PicMask;
    press(1, 384, 384);
    release(1, 384, 384);
    EXPECT_EQ(editor->doc.PicImage, image);
    EXPECT_EQ(editor->doc.PicMask, mask);
}

// A marker colour that an inverting pixel already holds would make that pixel
// look like part of the region: the search must pass it over.
TEST_F(FloodToolTest, MarkerNeverMatchesAColourOfTheIcon) {
    const Plane& chart = editor->pickers.PicPal;
    const Colour taken = chart.pixel(30, 100);
    draw({"...", "..."});
    setPixel(1, 0, taken, kWhite);
    editor->refresh();
    // Random numbers landing first on chart pixel (30, 100), then on (20, 200).
    std::vector<double> numbers = {30.5 / 51, 100.5 / 335, 20.5 / 51, 200.5 / 335};
    std::size_t next = 0;
    editor->services.random = [&] { return numbers[next++ % numbers.size()]; };
    editor->colours.value[0] = static_cast<std::int32_t>(kBlue);
    click(1, 0, 0);
    EXPECT_EQ(next, 4u);
    EXPECT_EQ(pixelAt(1, 0), std::make_pair(taken, kWhite));
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kBlue, kBlack));
    EXPECT_EQ(pixelAt(2, 0), std::make_pair(kBlue, kBlack));
}

// A generator that only ever points at the chart's black column can never
// give a marker; the fill must still finish, letting events run meanwhile.
TEST_F(FloodToolTest, StuckGeneratorStillFinishes) {
    draw({"gg.", "g.."});
    int eventsRun = 0;
    editor->services.random = [] { return 0.0; };
    editor->services.processEvents = [&] { ++eventsRun; };
    editor->colours.value[0] = static_cast<std::int32_t>(kRed);
    click(1, 0, 0);
    EXPECT_GT(eventsRun, 0);
    EXPECT_EQ(picture(2, 3), (Picture{"rr.", "r.."}));
}

} // namespace
