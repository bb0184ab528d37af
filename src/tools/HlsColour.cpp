#include "tools/HlsColour.h"

#include <algorithm>
#include <cmath>

namespace {

int channel(double v) {
    // nearbyint rounds in the current mode; the program never leaves the
    // default, round to nearest with halves to even.
    const double scaled = std::nearbyint(v * 255.0);
    return static_cast<int>(std::clamp(scaled, 0.0, 255.0));
}

} // namespace

Colour hlsToRgb(double hue, double lightness, double saturation) {
    const double h = hue, l = lightness, s = saturation;
    if (s == 0)
        return rgb(channel(l), channel(l), channel(l));
    const double low = l <= 0.5 ? l * (1 - s) : l - s * (1 - l);
    const double high = 2 * l - low;
    const double d = high - low;
    double red = 0, green = 0, blue = 0;
    if (h < 1) {
        red = high;
        if (h < 0) {
            blue = low - h * d;
            green = low;
        } else {
            green = low + h * d;
            blue = low;
        }
    } else if (h < 3) {
        green = high;
        if (h < 2) {
            blue = low;
            red = low - (h - 2) * d;
        } else {
            red = low;
            blue = low + (h - 2) * d;
        }
    } else {
        blue = high;
        if (h < 4) {
            red = low;
            green = low - (h - 4) * d;
        } else {
            green = low;
            red = low + (h - 4) * d;
        }
    }
    return rgb(channel(red), channel(green), channel(blue));
}
