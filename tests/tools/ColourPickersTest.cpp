#include "tools/ColourPickers.h"
#include "canvas/Resources.h"
#include "tools/ButtonColours.h"

#include <gtest/gtest.h>

namespace {

TEST(ColourPickersTest, ChartHasBlackAndWhiteEdgesAndPureHuesInTheMiddle) {
    const ColourPickers pickers;
    const Plane& chart = pickers.PicPal;
    ASSERT_EQ(chart.width(), 51);
    ASSERT_EQ(chart.height(), 335);
    for (int r = 0; r < 335; ++r) {
        ASSERT_EQ(chart.pixel(0, r), kBlack) << r;
        ASSERT_EQ(chart.pixel(50, r), kWhite) << r;
    }
    const struct {
        int column, row;
        Colour expected;
    } points[] = {
        // clang-format off
        {25, 0, rgb(255, 0, 0)}, {25, 334, rgb(255, 0, 255)}, {12, 0, rgb(122, 0, 0)},
        {30, 100, rgb(154, 255, 51)}, {45, 167, rgb(204, 255, 229)},
        // One point inside each sixth of the hue circle.
        {20, 33, rgb(204, 101, 0)}, {30, 233, rgb(51, 155, 255)}, {20, 300, rgb(100, 0, 204)},
        // Lightness summed in single precision stays a hair below 0.1 here,
        // so the blue half-step 25.5 is not reached: 25, not 26.
        {5, 167, rgb(0, 51, 25)},
        // clang-format on
    };
    for (const auto& p : points)
        EXPECT_EQ(chart.pixel(p.column, p.row), p.expected) << p.column << ", " << p.row;
}

TEST(ColourPickersTest, GreyRampAndMiniPalette) {
    const ColourPickers pickers;
    const struct {
        int column, grey;
    } greys[] = {{0, 0}, {1, 3}, {45, 127}, {46, 129}, {90, 253}, {91, 255}};
    for (const auto& g : greys)
        for (int y : {0, 31})
            EXPECT_EQ(pickers.PicGreyPal.pixel(g.column, y), rgb(g.grey, g.grey, g.grey))
                << g.column << ", " << y;

    const Colour standard[16] = {
        rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
        rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
        rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
        rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};
    for (int n = 0; n < 16; ++n) {
        const int left = 24 * (n % 4), top = 13 * (n / 4);
        SCOPED_TRACE(n);
        for (auto [x, y] : {std::pair{left, top}, {left + 23, top + 12}, {left + 11, top + 6}})
            EXPECT_EQ(pickers.PicMiniPal.pixel(x, y), standard[n]);
    }
}

TEST(ColourPickersTest, EachButtonPicksOnlyItsOwnColourAndADragStaysOnThePicker) {
    ColourPickers pickers;
    ButtonColours colours;
    using P = ColourPickers;
    const std::int32_t red = 0x0000FF, grey = 0x7F7F7F, purple = 0x800080, white = 0xFFFFFF;
    const struct {
        const char* what;
        P::Picker picker;
        int button, x, y;
        std::int32_t left, right;
        bool drag = false;
    } steps[] = {
        // clang-format off
        {"chart, left", P::Chart, 1, 25, 0, red, white},
        {"grey, right", P::GreyRamp, 2, 45, 20, red, grey},
        {"mini, left", P::MiniPalette, 1, 30, 20, purple, grey},
        {"transparent, right", P::Transparent, 2, 3, 3, purple, kTransparentColour},
        {"mini cell 15 replaces transparent", P::MiniPalette, 2, 95, 51, purple, white},
        {"middle button", P::Chart, 4, 25, 0, purple, white},
        {"drag off the chart's left", P::Chart, 1, -40, 200, kBlack, white, true},
        {"past its right", P::Chart, 1, 900, 5, white, white, true},
        {"below it", P::Chart, 1, 25, 5000, 0xFF00FF, white, true},
        {"above the grey ramp", P::GreyRamp, 1, 200, -3, white, white, true},
        {"past its right", P::MiniPalette, 1, 500, 0, 0x808000, white, true},
        {"below it", P::MiniPalette, 1, 0, 500, red, white, true},
        // clang-format on
    };
    for (const auto& s : steps) {
        SCOPED_TRACE(s.what);
        if (s.drag)
            pickers.mouseMove(s.picker, s.button, s.x, s.y, colours);
        else
            pickers.mouseDown(s.picker, s.button, s.x, s.y, colours);
        EXPECT_EQ(colours.value[0], s.left);
        EXPECT_EQ(colours.value[1], s.right);
    }
}

TEST(ColourPickersTest, SwatchShowsTheColourOrTheHatch) {
    EXPECT_EQ(ColourPickers::swatch(static_cast<std::int32_t>(rgb(255, 0, 0))),
              Plane(23, 12, rgb(255, 0, 0)));
    const Plane clear = ColourPickers::swatch(kTransparentColour, 30, 14);
    ASSERT_EQ(clear.width(), 30);
    ASSERT_EQ(clear.height(), 14);
    const Plane& pattern = Resources::transparentPattern();
    for (int y = 0; y < 14; ++y)
        for (int x = 0; x < 30; ++x)
            ASSERT_EQ(clear.pixel(x, y), x < 23 && y < 12 ? pattern.pixel(x, y) : kWhite)
                << x << ", " << y;
}

} // namespace
