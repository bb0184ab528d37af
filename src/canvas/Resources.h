#pragma once

#include "platform/Plane.h"

constexpr Colour kGridGrey = 0xC0C0C0;

// The program's three built-in pictures.
namespace Resources {
// Bitmap 10: one horizontal grid line, 385 x 1, black and light grey dots
// starting with black.
const Plane& horizontalGridLine();
// Bitmap 20: the same line, vertical (1 x 385).
const Plane& verticalGridLine();
// Bitmap 30: the 23 x 23 transparent-cell hatch: white, black top and bottom
// rows, black dots on every fourth diagonal.
const Plane& transparentPattern();
} // namespace Resources
