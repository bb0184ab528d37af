#include "fileio/ModPalette.h"

#include <gtest/gtest.h>

namespace {

// A 16 x 16 picture (256 pixels) whose first `count` pixels, in scan order,
// are distinct colours that are neither black nor white, the rest `rest`.
Plane withDistinctColours(int count, Colour rest = kBlack, int size = 16) {
    Plane p(size, size, rest);
    for (int i = 0; i < count; ++i)
        p.setPixel(i % size, i / size, rgb(1 + i % 200, i / 200, 7));
    return p;
}

TEST(ModPaletteTest, CountPicksTheSmallestDepthInItsOrderOfTests) {
    Plane blackAndWhite(16, 16, kBlack);
    blackAndWhite.setPixel(3, 3, kWhite);
    Plane sixteen(16, 16, kWhite);
    sixteen.setPixel(0, 0, 0x000080);
    sixteen.setPixel(1, 0, 0xC0C0C0);
    sixteen.setPixel(2, 0, 0xFFFF00);
    Plane almostSixteen = sixteen;
    almostSixteen.setPixel(3, 0, 0xC0C0C1);

    const struct {
        const char* what;
        Plane picture;
        int forIcon, forBitmap;
    } cases[] = {
        {"all black", Plane(16, 16, kBlack), 2, 2},
        {"black and white, which 16 colours also hold", blackAndWhite, 2, 2},
        {"the sixteen standard colours", sixteen, 16, 16},
        {"one colour off the sixteen", almostSixteen, 256, 256},
        {"254 others beside black and white", withDistinctColours(254, kWhite), 256, 256},
        {"255 others beside black", withDistinctColours(255), -1, 256},
        {"256 others", withDistinctColours(256), -1, 256},
        {"257 distinct in a 48 x 48", withDistinctColours(257, kBlack, 48), -1, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ModPalette::countColours(c.picture, true), c.forIcon);
        EXPECT_EQ(ModPalette::countColours(c.picture, false), c.forBitmap);
    }

    // 254 others with both black and white present: still 8 bits for an
    // icon, and 256 distinct in all for a bitmap.
    Plane full = withDistinctColours(254, kBlack, 48);
    full.setPixel(47, 47, kWhite);
    EXPECT_EQ(ModPalette::countColours(full, true), 256);
    EXPECT_EQ(ModPalette::countColours(full, false), 256);
}

TEST(ModPaletteTest, PalettesNumberNewColoursInScanOrder) {
    Plane p(16, 16, kBlack);
    p.setPixel(5, 0, rgb(9, 9, 9));
    p.setPixel(0, 1, kWhite);
    p.setPixel(1, 1, rgb(1, 2, 3));
    p.setPixel(2, 1, rgb(9, 9, 9));

    const ColourTable icon = ModPalette::buildIconPalette(p);
    ASSERT_EQ(icon.size(), 256u);
    EXPECT_EQ(icon[0], kBlack);
    EXPECT_EQ(icon[1], rgb(9, 9, 9));
    EXPECT_EQ(icon[2], rgb(1, 2, 3));
    EXPECT_EQ(icon[3], kBlack);
    EXPECT_EQ(icon[255], kWhite);

    const ColourTable bitmap = ModPalette::buildBitmapPalette(p);
    ASSERT_EQ(bitmap.size(), 256u);
    const ColourTable firstFour = {kBlack, rgb(9, 9, 9), kWhite, rgb(1, 2, 3)};
    EXPECT_EQ(ColourTable(bitmap.begin(), bitmap.begin() + 4), firstFour);
    EXPECT_EQ(bitmap[255], kBlack);
}

TEST(ModPaletteTest, PalettesStopWhenTheTableIsFull) {
    const Plane many = withDistinctColours(300, kBlack, 48);
    const ColourTable icon = ModPalette::buildIconPalette(many);
    EXPECT_EQ(icon[254], rgb(1 + 253 % 200, 253 / 200, 7));
    EXPECT_EQ(icon[255], kWhite);
    const ColourTable bitmap = ModPalette::buildBitmapPalette(many);
    EXPECT_EQ(bitmap[0], rgb(1, 0, 7));
    EXPECT_EQ(bitmap[255], rgb(1 + 255 % 200, 255 / 200, 7));
}

} // namespace
