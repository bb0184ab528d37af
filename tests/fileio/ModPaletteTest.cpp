#include "fileio/ModPalette.h"

#include <gtest/gtest.h>

namespace {

// A picture whose first `count` pixels in scan order are distinct colours,
// neither black nor white, the rest `rest`.
Plane withDistinctColours(int count, Colour rest = kBlack, int size = 16) {
    Plane p(size, size, rest);
    for (int i = 0; i < count; ++i)
        p.setPixel(i % size, i / size, rgb(1 + i % 200, i / 200, 7));
    return p;
}

TEST(ModPaletteTest, CountPicksTheSmallestDepthInItsOrderOfTests) {
    Plane blackAndWhite(16, 16, kBlack), sixteen(16, 16, kWhite);
    blackAndWhite.setPixel(3, 3, kWhite);
    sixteen.setPixel(0, 0, 0x000080);
    sixteen.setPixel(1, 0, 0xFFFF00);
    Plane almostSixteen = sixteen, full = withDistinctColours(254, kBlack, 48);
    almostSixteen.setPixel(3, 0, 0xC0C0C1);
    full.setPixel(47, 47, kWhite);
    const std::tuple<const char*, Plane, int, int> cases[] = {
        {"black and white, which 16 colours also hold", blackAndWhite, 2, 2},
        {"standard colours", sixteen, 16, 16},
        {"one colour off the sixteen", almostSixteen, 256, 256},
        {"254 others beside black and white", full, 256, 256},
        {"255 others beside black", withDistinctColours(255), -1, 256},
        {"256 others", withDistinctColours(256), -1, 256},
        {"257 distinct in a 48 x 48", withDistinctColours(257, kBlack, 48), -1, -1},
    };
    for (const auto& [what, picture, forIcon, forBitmap] : cases) {
        EXPECT_EQ(ModPalette::countColours(picture, true), forIcon) << what;
        EXPECT_EQ(ModPalette::countColours(picture, false), forBitmap) << what;
    }
}

TEST(ModPaletteTest, PalettesStopWhenTheyAreFull) {
    const Plane many = withDistinctColours(300, kBlack, 48);
    const ColourTable icon = ModPalette::buildIconPalette(many);
    EXPECT_EQ(ColourTable(icon.end() - 3, icon.end()),
              (ColourTable{rgb(53, 1, 7), rgb(54, 1, 7), kWhite}));
    EXPECT_EQ(ModPalette::buildBitmapPalette(many).back(), rgb(56, 1, 7)); // the 256th colour
}

} // namespace
