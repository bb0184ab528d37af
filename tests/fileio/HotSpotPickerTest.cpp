#include "fileio/HotSpotPicker.h"

#include <gtest/gtest.h>

namespace {

struct PixelCase {
    int zoom;
    double pointer;
    int pixel;        // as a press computes it
    int clampedPixel; // as the read-out computes it
};

TEST(HotSpotPicker, PointerToPixelTruncatesDividesAndStopsAtTheLastPixel) {
    const PixelCase cases[] = {
        {24, 0.0, 0, 0},      {24, 23.9, 0, 0},    {24, 24.0, 1, 1},    {24, 383.0, 15, 15},
        {24, 383.99, 15, 15}, {24, 384.0, 15, 15}, {24, 900.0, 15, 15}, {12, 11.99, 0, 0},
        {12, 12.0, 1, 1},     {12, 383.0, 31, 31}, {8, 7.9, 0, 0},      {8, 8.0, 1, 1},
        {8, 383.5, 47, 47},   {24, -0.5, 0, 0},    {24, -30.0, -1, 0},  {8, -9.0, -1, 0},
    };
    for (const PixelCase& c : cases) {
        const HotSpotPicker picker(c.zoom, 384 / c.zoom - 1);
        EXPECT_EQ(picker.pixelOf(c.pointer), c.pixel) << c.zoom << " " << c.pointer;
        EXPECT_EQ(picker.clampedPixelOf(c.pointer), c.clampedPixel) << c.zoom << " " << c.pointer;
    }
}

TEST(HotSpotPicker, StartsAtTheTopLeftPixel) {
    const HotSpotPicker picker(12, 31);
    EXPECT_EQ(picker.hotSpot().x, 0);
    EXPECT_EQ(picker.hotSpot().y, 0);
    EXPECT_EQ(picker.hotXText(), "00");
    EXPECT_EQ(picker.hotYText(), "00");
}

TEST(HotSpotPicker, OnlyTheLeftButtonChoosesThePixel) {
    HotSpotPicker picker(24, 15);
    picker.mouseDown(1, 383.0, 130.0);
    EXPECT_EQ(picker.hotSpot().x, 15);
    EXPECT_EQ(picker.hotSpot().y, 5);
    EXPECT_EQ(picker.hotXText(), "15");
    EXPECT_EQ(picker.hotYText(), "05");

    for (int button : {2, 4, 0}) {
        picker.mouseDown(button, 10.0, 10.0);
        EXPECT_EQ(picker.hotSpot().x, 15) << button;
        EXPECT_EQ(picker.hotSpot().y, 5) << button;
    }
}

TEST(HotSpotPicker, ReadoutFollowsThePointerWithoutMovingTheHotSpot) {
    HotSpotPicker picker(12, 31);
    EXPECT_EQ(picker.readout(65.0, 137.0), "05, 11");
    EXPECT_EQ(picker.readout(-40.0, 1000.0), "00, 31");
    EXPECT_EQ(picker.hotSpot().x, 0);
    EXPECT_EQ(picker.hotSpot().y, 0);

    const HotSpotPicker small(24, 15);
    EXPECT_EQ(small.readout(383.0, 384.0), "15, 15");
}

} // namespace
