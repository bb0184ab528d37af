#pragma once

#include "platform/Plane.h"

// The Image menu's geometric operations on one plane. The commands apply each
// to a colour plane and its mask alike, so transparency moves with the colours.
namespace ImageTransforms {
// dst(x, y) = src(W - 1 - x, y).
void flipHorizontal(Plane& plane);
// dst(x, y) = src(x, H - 1 - y).
void flipVertical(Plane& plane);
// A quarter turn clockwise: src(x, y) lands on (H - 1 - y, x) of a plane H
// wide and W high.
Plane rotatedClockwise(const Plane& plane);
// A quarter turn anticlockwise: src(x, y) lands on (y, W - 1 - x).
Plane rotatedAnticlockwise(const Plane& plane);

// One half mirrored over the other; the named first half wins. On an odd
// extent the halves are truncated, so the last column or row (left in right,
// top in bottom) or the middle one (right in left, bottom in top) is left alone.
void reflectLeftInRight(Plane& plane);
void reflectRightInLeft(Plane& plane);
void reflectTopInBottom(Plane& plane);
void reflectBottomInTop(Plane& plane);
} // namespace ImageTransforms
