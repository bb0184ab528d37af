#pragma once

#include "platform/Colour.h"

// Hue-lightness-saturation to RGB, as the colour chart is built: hue in
// sixths of the colour circle, [0, 6); lightness and saturation in [0, 1].
// Each channel is scaled to 0..255 and rounded to nearest, halves to even.
Colour hlsToRgb(double hue, double lightness, double saturation);
