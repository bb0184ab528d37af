#pragma once

#include "platform/Plane.h"

// The surface flood fill: every pixel connected to (x, y) through horizontal
// and vertical neighbours of exactly the colour found at (x, y) becomes
// colour. A point outside the plane, or a start pixel already of colour,
// changes nothing.
void floodFillSurface(Plane& plane, int x, int y, Colour colour);
