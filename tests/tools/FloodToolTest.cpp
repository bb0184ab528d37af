#include "tools/ToolsFixture.h"

namespace {

class FloodToolTest : public ToolsFixture {};

TEST_F(FloodToolTest, FillsThe4ConnectedRegionSharingMaskAndColour) {
    const auto blue = static_cast<std::int32_t>(kBlue);
    // What, the icon, the point and button, the colour, the icon after.
    const std::tuple<const char*, const char*, int, int, int, std::int32_t, const char*> cases[] = {
        // clang-format off
        {"inside a ring", "gggg/g..g/g..g/gggg", 1, 1, 1, blue, "gggg/gbbg/gbbg/gggg"},
        {"the ring, right button", "gggg/g..g/g..g/gggg", 0, 0, 2, blue, "bbbb/b..b/b..b/bbbb"},
        {"opaque black beside transparent", "..k./..k./kkk.", 0, 0, 1, blue, "bbk./bbk./kkk."},
        {"inverting red beside opaque red", "rri/rir/rrr", 0, 0, 1, blue, "bbi/bib/bbb"},
        {"transparent fill", "ggk/gkk/kkg", 0, 0, 1, kTransparentColour, "..k/.kk/kkg"},
        // clang-format on
    };
    for (const auto& [what, before, x, y, button, colour, after] : cases) {
        startWithSize(0);
        editor->tools().chooseTool(DrawingTools::Flood);
        draw(before, 'T');
        editor->doc().modified = false;
        editor->colours().value[button - 1] = colour;
        // The fill is done at mouse-down; mouse-up only records it.
        press(button, at(x), at(y));
        SCOPED_TRACE(what);
        expectPicture(after, 0, 0, 'T');
        EXPECT_TRUE(editor->doc().modified);
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
    EXPECT_FALSE(editor->doc().modified);
}

// The marker must be a colour the icon does not hold: one that an inverting
// pixel holds would make that pixel look like part of the region. The
// generator first lands on such a colour, at chart pixel (30, 100), then on
// (20, 200); a generator stuck on the chart's black column never gives a
// marker, and the fill must still finish, letting events run meanwhile.
TEST_F(FloodToolTest, MarkerNeverMatchesAColourOfTheIconEvenFromAStuckGenerator) {
    const Colour taken = editor->pickers().PicPal.pixel(30, 100);
    const double numbers[] = {30.5 / 51, 100.5 / 335, 20.5 / 51, 200.5 / 335};
    for (const bool stuck : {false, true}) {
        startWithSize(1);
        editor->tools().chooseTool(DrawingTools::Flood);
        paint(1, 0, taken, kWhite);
        editor->refresh();
        std::size_t next = 0;
        int eventsRun = 0;
        editor->services().random = [&] { return stuck ? 0.0 : numbers[next++ % 4]; };
        editor->services().processEvents = [&] { ++eventsRun; };
        setColours(kBlue, kRed);
        click(1, 0, 0);
        EXPECT_EQ(std::pair(next, eventsRun > 1), std::pair(std::size_t{stuck ? 0u : 4u}, stuck))
            << stuck;
        EXPECT_EQ(std::vector({pixelAt(0, 0), pixelAt(1, 0), pixelAt(2, 0)}),
                  std::vector({std::pair(kBlue, kBlack), std::pair(taken, kWhite),
                               std::pair(kBlue, kBlack)}));
    }
}

} // namespace
