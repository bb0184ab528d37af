#include "canvas/Resources.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

TEST(ResourcesTest, TheHatchIsADiagonalEveryFourthPixelBetweenTwoBlackRows) {
    const Plane& pattern = Resources::transparentPattern();
    ASSERT_EQ(pattern.width(), 23);
    ASSERT_EQ(pattern.height(), 23);
    // The 6 x 6 corner a 48 x 48 icon's cell shows.
    EXPECT_EQ(AsciiArt::fromPlane(pattern, AsciiArt::inkOnPaper(), 0, 0, 6, 6),
              AsciiArt::text({"######", "...#..", "..#...", ".#...#", "#...#.", "...#.."}));
    for (int x = 0; x < 23; ++x) {
        EXPECT_EQ(pattern.pixel(x, 0), kBlack) << x;
        EXPECT_EQ(pattern.pixel(x, 22), kBlack) << x;
        // Between them it repeats every fourth pixel across and down.
        for (int y = 1; y < 22; ++y)
            ASSERT_EQ(pattern.pixel(x, y), pattern.pixel(x % 4, (y - 1) % 4 + 1)) << x << "," << y;
    }
}

} // namespace
