#include "tools/ColourPickers.h"
#include "canvas/Resources.h"
#include "platform/Raster.h"
#include "tools/ButtonColours.h"

#include <gtest/gtest.h>

namespace {

TEST(ColourPickersTest, ChartRampAndMiniPaletteHoldTheirColours) {
    const ColourPickers pickers;
    const Plane &chart = pickers.PicPal, &ramp = pickers.PicGreyPal;
    ASSERT_EQ(std::pair(chart.width(), chart.height()), std::pair(51, 335));
    for (int r = 0; r < 335; ++r)
        ASSERT_EQ(std::pair(chart.pixel(0, r), chart.pixel(50, r)), std::pair(kBlack, kWhite)) << r;
    // The picker, a pixel and its colour. The ramp's columns are the same
    // from top to bottom.
    const std::tuple<const Plane*, int, int, Colour> points[] = {
        // clang-format off
        {&chart, 25, 0, rgb(255, 0, 0)}, {&chart, 25, 334, rgb(255, 0, 255)},
        {&chart, 12, 0, rgb(122, 0, 0)}, {&chart, 30, 100, rgb(154, 255, 51)},
        {&chart, 45, 167, rgb(204, 255, 229)},
        // One point inside each sixth of the hue circle.
        {&chart, 20, 33, rgb(204, 101, 0)}, {&chart, 30, 233, rgb(51, 155, 255)},
        {&chart, 20, 300, rgb(100, 0, 204)},
        // Lightness summed in single precision stays a hair below 0.1 here,
        // so the blue half-step 25.5 is not reached: 25, not 26.
        {&chart, 5, 167, rgb(0, 51, 25)},
        {&ramp, 0, 0, 0x000000}, {&ramp, 1, 31, 0x030303}, {&ramp, 45, 0, 0x7F7F7F},
        {&ramp, 46, 31, 0x818181}, {&ramp, 90, 31, 0xFDFDFD}, {&ramp, 91, 0, 0xFFFFFF},
        // clang-format on
    };
    for (const auto& [plane, x, y, colour] : points)
        EXPECT_EQ(plane->pixel(x, y), colour) << (plane == &ramp) << " at " << x << ", " << y;
    // The mini palette: four rows of four cells, 24 x 13 pixels each, with
    // no gap between.
    const Colour standard[16] = {
        rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
        rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
        rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
        rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};
    Plane expected(96, 52);
    for (int n = 0; n < 16; ++n)
        fillRect(expected, 24 * (n % 4), 13 * (n / 4), 24 * (n % 4 + 1), 13 * (n / 4 + 1),
                 standard[n]);
    EXPECT_EQ(pickers.PicMiniPal, expected);
}

TEST(ColourPickersTest, EachButtonPicksOnlyItsOwnColourAndADragStaysOnThePicker) {
    ColourPickers pickers;
    ButtonColours colours;
    using P = ColourPickers;
    const std::int32_t red = 0x0000FF, grey = 0x7F7F7F, purple = 0x800080, white = 0xFFFFFF;
    // What, the picker, button and point, the colours after, whether a drag.
    const std::tuple<const char*, P::Picker, int, int, int, std::int32_t, std::int32_t, bool>
        steps[] = {
            // clang-format off
        {"chart, left", P::Chart, 1, 25, 0, red, white, false},
        {"grey, right", P::GreyRamp, 2, 45, 20, red, grey, false},
        {"mini, left", P::MiniPalette, 1, 30, 20, purple, grey, false},
        {"transparent, right", P::Transparent, 2, 3, 3, purple, kTransparentColour, false},
        {"mini cell 15 replaces transparent", P::MiniPalette, 2, 95, 51, purple, white, false},
        {"middle button", P::Chart, 4, 25, 0, purple, white, false},
        {"drag off the chart's left", P::Chart, 1, -40, 200, kBlack, white, true},
        {"past its right", P::Chart, 1, 900, 5, white, white, true},
        {"below it", P::Chart, 1, 25, 5000, 0xFF00FF, white, true},
        {"above the grey ramp", P::GreyRamp, 1, 200, -3, white, white, true},
        {"past its right", P::MiniPalette, 1, 500, 0, 0x808000, white, true},
        {"below it", P::MiniPalette, 1, 0, 500, red, white, true},
            // clang-format on
        };
    for (const auto& [what, picker, button, x, y, left, right, drag] : steps) {
        if (drag)
            pickers.mouseMove(picker, button, x, y, colours);
        else
            pickers.mouseDown(picker, button, x, y, colours);
        EXPECT_EQ(colours.value, (std::array{left, right})) << what;
    }
}

TEST(ColourPickersTest, SwatchShowsTheColourOrTheHatch) {
    EXPECT_EQ(ColourPickers::swatch(static_cast<std::int32_t>(rgb(255, 0, 0))),
              Plane(23, 12, rgb(255, 0, 0)));
    // The hatch fills a swatch's usual size; a larger one is white beyond.
    Plane hatch(30, 14, kWhite);
    bitBlt(hatch, 0, 0, 23, 12, Resources::transparentPattern(), 0, 0, RasterOp::Copy);
    EXPECT_EQ(ColourPickers::swatch(kTransparentColour, 30, 14), hatch);
}

} // namespace
