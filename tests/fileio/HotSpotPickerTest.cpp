#include "fileio/HotSpotPicker.h"

#include <gtest/gtest.h>

namespace {

TEST(HotSpotPicker, PointerToPixelTruncatesDividesAndStopsAtTheLastPixel) {
    // Zoom, pointer, and the pixel a press and the read-out take.
    const std::tuple<int, double, int, int> cases[] = {
        {24, 23.9, 0, 0},   {24, 24.0, 1, 1}, {24, 900.0, 15, 15}, {12, 383.0, 31, 31},
        {8, 383.5, 47, 47}, {24, -0.5, 0, 0}, {24, -30.0, -1, 0}};
    for (const auto& [zoom, pointer, pixel, clampedPixel] : cases) {
        const HotSpotPicker picker(zoom, 384 / zoom - 1);
        EXPECT_EQ(picker.pixelOf(pointer), pixel) << zoom << " " << pointer;
        EXPECT_EQ(picker.clampedPixelOf(pointer), clampedPixel) << zoom << " " << pointer;
    }
}

} // namespace
