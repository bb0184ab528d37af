#include "tools/ColourPickers.h"

#include "canvas/Resources.h"
#include "platform/Raster.h"
#include "tools/ButtonColours.h"
#include "tools/HlsColour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array<Colour, 16> kStandardColours = {
    rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
    rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
    rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
    rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};

Plane buildChart() {
    Plane chart(51, 335, kWhite);
    // Lightness is summed column by column in single precision on purpose, so
    // the chart offers exactly the colours users know from it: column 50
    // lands a hair below 1.0, and a few channels round differently than with
    // c * 0.02 exactly.
    float lightness = 0.0f;
    for (int c = 0; c < 51; ++c) {
        for (int r = 0; r < 335; ++r)
            chart.setPixel(c, r, hlsToRgb(r / 66.8, static_cast<double>(lightness), 1.0));
        lightness += 0.02f;
    }
    return chart;
}

Plane buildGreyRamp() {
    Plane ramp(92, 32, kWhite);
    for (int x = 0; x < 92; ++x) {
        const int g = std::min(255, static_cast<int>(std::nearbyint(x * 256.0 / 91.0)));
        for (int y = 0; y < 32; ++y)
            ramp.setPixel(x, y, rgb(g, g, g));
    }
    return ramp;
}

Plane buildMiniPalette() {
    Plane mini(4 * ColourPickers::kCellWidth, 4 * ColourPickers::kCellHeight, kWhite);
    for (int j = 0; j < 4; ++j)
        for (int i = 0; i < 4; ++i)
            fillRect(mini, i * ColourPickers::kCellWidth, j * ColourPickers::kCellHeight,
                     (i + 1) * ColourPickers::kCellWidth, (j + 1) * ColourPickers::kCellHeight,
                     kStandardColours[static_cast<std::size_t>(i + 4 * j)]);
    return mini;
}

} // namespace

ColourPickers::ColourPickers()
    : PicPal(buildChart()), PicGreyPal(buildGreyRamp()), PicMiniPal(buildMiniPalette()) {}

Colour ColourPickers::standardColour(int number) {
    return kStandardColours[static_cast<std::size_t>(std::clamp(number, 0, 15))];
}

void ColourPickers::mouseDown(Picker picker, int button, int x, int y, ButtonColours& colours) {
    if (button != 1 && button != 2)
        return;
    if (picker == Transparent) {
        colours.value[static_cast<std::size_t>(button - 1)] = kTransparentColour;
        return;
    }
    mouseMove(picker, button, x, y, colours);
}

void ColourPickers::mouseMove(Picker picker, int button, int x, int y, ButtonColours& colours) {
    if (button != 1 && button != 2)
        return;
    Colour c;
    switch (picker) {
    case Chart:
        c = PicPal.pixel(std::clamp(x, 0, PicPal.width() - 1),
                         std::clamp(y, 0, PicPal.height() - 1));
        break;
    case GreyRamp:
        c = PicGreyPal.pixel(std::clamp(x, 0, PicGreyPal.width() - 1),
                             std::clamp(y, 0, PicGreyPal.height() - 1));
        break;
    case MiniPalette:
        // From the cell, not from the pixel: the number the cell stands for.
        c = standardColour(std::clamp(x, 0, PicMiniPal.width() - 1) / kCellWidth +
                           4 * (std::clamp(y, 0, PicMiniPal.height() - 1) / kCellHeight));
        break;
    default:
        return;
    }
    colours.value[static_cast<std::size_t>(button - 1)] = static_cast<std::int32_t>(c);
}

Plane ColourPickers::swatch(std::int32_t buttonValue, int width, int height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (buttonValue != kTransparentColour)
        return Plane(width, height, static_cast<Colour>(buttonValue));
    Plane look(width, height, kWhite);
    bitBlt(look, 0, 0, std::min(width, kSwatchWidth), std::min(height, kSwatchHeight),
           Resources::transparentPattern(), 0, 0, RasterOp::Copy);
    return look;
}
