#pragma once

#include "platform/Plane.h"

// The three raster operations the program combines pictures with.
enum class RasterOp {
    Copy, // SRCCOPY: dst = src
    And,  // SRCAND: dst = dst AND src
    Xor,  // SRCINVERT: dst = dst XOR src
};

// Block transfer of the w x h block at (sx, sy) of src to (dx, dy) of dst.
// Pixels that fall outside either plane are skipped. src may be dst.
void bitBlt(Plane& dst, int dx, int dy, int w, int h, const Plane& src, int sx, int sy,
            RasterOp op);

// Nearest-pixel (colour on colour) stretch. An extent of n covers n pixels
// starting at its origin; a negative extent runs from the origin towards
// smaller coordinates, so mismatched signs mirror the picture. Destination
// pixel i of a span samples source pixel floor(i * |sw| / |dw|). src may be dst:
// the source is read as it was before the transfer.
void stretchBlt(Plane& dst, int dx, int dy, int dw, int dh, const Plane& src, int sx, int sy,
                int sw, int sh, RasterOp op);

// Draws a picture of the icon formats over what dst holds, its top-left
// corner at (dx, dy): dst AND mask, then XOR image, both of the mask's size.
// Opaque pixels (mask black) replace, transparent ones (mask white, image
// black) keep dst, inverting ones (mask white) invert it.
void drawMasked(Plane& dst, int dx, int dy, const Plane& mask, const Plane& image);
// The same, stretched to dw x dh.
void stretchMasked(Plane& dst, int dx, int dy, int dw, int dh, const Plane& mask,
                   const Plane& image);

// Fill the rectangle [left, right) x [top, bottom), clipped to the plane.
void fillRect(Plane& dst, int left, int top, int right, int bottom, Colour c);
