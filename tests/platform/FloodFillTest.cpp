#include "platform/FloodFill.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

using AsciiArt::fromPlane;
using AsciiArt::text;
using AsciiArt::toPlane;

constexpr Colour kNearlyWhite = 0xFFFFFE;
constexpr Colour kMarker = 0x00FF00;
const AsciiArt::Palette kPalette{{'.', kWhite}, {'#', kBlack}, {'-', kNearlyWhite}, {'m', kMarker}};

TEST(FloodFillTest, FillsThroughSidesOnlyAndLeavesNearColoursAndOtherStartsAlone) {
    Plane plane = toPlane({"..#....", "..#....", "##.#...", "..#-...", "..#...."}, kPalette);
    // (2, 2) touches the top-left region only across a corner.
    floodFillSurface(plane, 0, 0, kMarker);
    EXPECT_EQ(fromPlane(plane, kPalette),
              text({"mm#....", "mm#....", "##.#...", "..#-...", "..#...."}));
    // Upwards from the bottom corner; (3, 3) differs from white in its last
    // bit only: it stays.
    floodFillSurface(plane, 6, 4, kMarker);
    // The colour already there, or a start off the plane, leaves all as it was.
    for (const auto& [x, y] : {std::pair{0, 0}, {-1, 0}, {7, 0}, {0, -1}, {0, 5}})
        floodFillSurface(plane, x, y, kMarker);
    EXPECT_EQ(fromPlane(plane, kPalette),
              text({"mm#mmmm", "mm#mmmm", "##.#mmm", "..#-mmm", "..#mmmm"}));
}

TEST(FloodFillTest, AWholeCanvasSizedSerpentineFillsWithoutRunningOutOfStack) {
    // Walls on every other row, open at alternate ends: one path of some
    // 74,000 pixels, the worst case for a recursive fill.
    const int size = 385;
    Plane plane(size, size, kWhite), expected(size, size, kMarker);
    for (int y = 1; y < size; y += 2)
        for (int x = 0; x < size; ++x)
            if (x != ((y / 2) % 2 == 0 ? size - 1 : 0))
                plane.setPixel(x, y, kBlack), expected.setPixel(x, y, kBlack);
    floodFillSurface(plane, 0, 0, kMarker);
    EXPECT_TRUE(plane == expected);
}

} // namespace
