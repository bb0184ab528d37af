#pragma once

#include "platform/Plane.h"

// Effects > Buttonize: a raised bevel along the border of the whole icon.
namespace Buttonize {
// The innermost ring shaded and its amount; the amount doubles on every ring
// outward to ring 0, the outermost row and column.
struct Rings {
    int innermost;
    int amount;
};
// 16: rings 1..0 from 60; 32: 2..0 from 30; 48: 3..0 from 10. Other sizes do
// not occur and get no ring.
Rings ringsFor(int size);

// Each channel raised by amount (at most 255) or, darkening, lowered by it
// (at least 0).
Colour shade(Colour c, bool darken, int amount);

// Lightens the top and left side of each ring and darkens the bottom and
// right side; only opaque pixels (mask black) change.
void apply(Plane& image, const Plane& mask);
} // namespace Buttonize
