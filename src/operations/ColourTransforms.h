#pragma once

#include "platform/Plane.h"

// The Color menu's per-pixel operations. Both change only the opaque pixels:
// where the mask is white the pixel is transparent (or inverting) and keeps
// its colour.
namespace ColourTransforms {
// (r, g, b) becomes (255 - r, 255 - g, 255 - b).
void invert(Plane& image, const Plane& mask);
// Every opaque pixel becomes the grey of greyOf.
void greyscale(Plane& image, const Plane& mask);
// The grey (v, v, v) of a colour: v = (222 r + 707 g + 71 b) / 1000, rounded
// to the nearest integer with exact halves going to the even one.
Colour greyOf(Colour c);
} // namespace ColourTransforms
