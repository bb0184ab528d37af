#include "tools/ToolsFixture.h"

namespace {

class FloodToolTest : public ToolsFixture {};

TEST_F(FloodToolTest, FillsThe4ConnectedRegionSharingMaskAndColour) {
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
        startWithSize(0);
        editor->tools().chooseTool(DrawingTools::Flood);
        draw(c.before, 'T');
        editor->doc().modified = false;
        editor->colours().value[c.button - 1] = c.colour;
        // The fill is done at mouse-down; mouse-up only records it.
        press(c.button, at(c.x), at(c.y));
        expectPicture(c.after, 0, 0, 'T');
        EXPECT_TRUE(editor->doc().modified);
        release(c.button, at(c.x), at(c.y));
        EXPECT_EQ(editor->undoRedo().UndoStack.size(), 2u);
    }
    // On a 48 x 48 icon the region runs to the last pixel, (47, 47).
    startWithSize(2);
    editor->tools().chooseTool(DrawingTools::Flood);
    setColours(kBlue, kRed);
    click(1, 47, 47);
    expectPicture(".", 0, 0, 'b');
    // The closing grid line lies past the last pixel: nothing to fill.
    editor->doc().modified = false;
    press(1, 384, 384);
    release(1, 384, 384);
    EXPECT_FALSE(editor->doc().modified);
}

// A marker colour that an inverting pixel already holds would make that pixel
// look like part of the region: the search must pass it over.
TEST_F(FloodToolTest, MarkerNeverMatchesAColourOfTheIcon) {
    const Colour taken = editor->pickers().PicPal.pixel(30, 100);
    editor->tools().chooseTool(DrawingTools::Flood);
    editor->doc().PicImage.setPixel(1, 0, taken);
    editor->refresh();
    // Random numbers landing first on chart pixel (30, 100), then on (20, 200).
    const double numbers[] = {30.5 / 51, 100.5 / 335, 20.5 / 51, 200.5 / 335};
    std::size_t next = 0;
    editor->services().random = [&] { return numbers[next++ % 4]; };
    setColours(kBlue, kRed);
    click(1, 0, 0);
    EXPECT_EQ(next, 4u);
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kBlue, kBlack));
    EXPECT_EQ(pixelAt(1, 0), std::make_pair(taken, kWhite));
    EXPECT_EQ(pixelAt(2, 0), std::make_pair(kBlue, kBlack));
}

// A generator that only ever points at the chart's black column can never
// give a marker; the fill must still finish, letting events run meanwhile.
TEST_F(FloodToolTest, StuckGeneratorStillFinishes) {
    editor->tools().chooseTool(DrawingTools::Flood);
    draw("gg./g..", 'T');
    int eventsRun = 0;
    editor->services().random = [] { return 0.0; };
    editor->services().processEvents = [&] { ++eventsRun; };
    setColours(kRed, kBlue);
    click(1, 0, 0);
    EXPECT_GT(eventsRun, 0);
    expectPicture("rr/r.", 0, 0, 'T');
}

} // namespace
