#include "canvas/Resources.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

TEST(ResourcesTest, GridLinesAreDottedBlackAndLightGreyStartingBlack) {
    const Plane& across = Resources::horizontalGridLine();
    const Plane& down = Resources::verticalGridLine();
    ASSERT_EQ(across.width(), 385);
    ASSERT_EQ(across.height(), 1);
    ASSERT_EQ(down.width(), 1);
    ASSERT_EQ(down.height(), 385);
    const Colour lightGrey = rgb(192, 192, 192);
    for (int i = 0; i < 385; ++i) {
        const Colour expected = i % 2 == 0 ? kBlack : lightGrey;
        ASSERT_EQ(across.pixel(i, 0), expected) << i;
        ASSERT_EQ(down.pixel(0, i), expected) << i;
    }
}

TEST(ResourcesTest, TheTransparentPatternIsADiagonalHatchBetweenTwoBlackRows) {
    const Plane& pattern = Resources::transparentPattern();
    ASSERT_EQ(pattern.width(), 23);
    ASSERT_EQ(pattern.height(), 23);
    for (int x = 0; x < 23; ++x) {
        EXPECT_EQ(pattern.pixel(x, 0), kBlack) << x;
        EXPECT_EQ(pattern.pixel(x, 22), kBlack) << x;
    }
    // Between them, black dots every fourth pixel of a row, moving one pixel
    // sideways from row to row, always the same way: diagonal lines.
    int previousFirst = -1, drift = 0;
    for (int y = 1; y < 22; ++y) {
        int first = -1, count = 0;
        for (int x = 0; x < 23; ++x) {
            const Colour c = pattern.pixel(x, y);
            ASSERT_TRUE(c == kBlack || c == kWhite) << x << "," << y;
            if (c != kBlack)
                continue;
            if (first < 0)
                first = x;
            EXPECT_EQ((x - first) % 4, 0) << x << "," << y;
            ++count;
        }
        ASSERT_GE(first, 0) << "row " << y;
        ASSERT_LT(first, 4) << "row " << y;
        EXPECT_EQ(count, (22 - first) / 4 + 1) << "row " << y;
        if (previousFirst >= 0) {
            const int step = (first - previousFirst + 4) % 4;
            ASSERT_TRUE(step == 1 || step == 3) << "row " << y;
            if (drift == 0)
                drift = step;
            EXPECT_EQ(step, drift) << "row " << y;
        }
        previousFirst = first;
    }
    // The 6 x 6 corner a 48 x 48 icon's cells show.
    EXPECT_EQ(AsciiArt::fromPlane(pattern, AsciiArt::inkOnPaper(), 0, 0, 6, 6), AsciiArt::text({
                                                                                    "######",
                                                                                    "...#..",
                                                                                    "..#...",
                                                                                    ".#...#",
                                                                                    "#...#.",
                                                                                    "...#..",
                                                                                }));
}

} // namespace
