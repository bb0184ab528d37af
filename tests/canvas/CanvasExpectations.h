#pragma once

#include "canvas/Resources.h"

// What the canvas should show, worked out from a pixel's offset in its cell.
namespace CanvasExpectations {

// The empty back buffer: a white first and last row and column in each cell,
// the top-left of the hatch in between.
inline Colour background(int x, int y, int zoom) {
    const int ox = x % zoom, oy = y % zoom;
    if (ox == 0 || oy == 0 || ox == zoom - 1 || oy == zoom - 1)
        return kWhite;
    return Resources::transparentPattern().pixel(ox - 1, oy - 1);
}

inline bool onGrid(int x, int y, int zoom) {
    return x % zoom == 0 || y % zoom == 0;
}

// PicMain over back buffer pixel b: the dotted grid on the first row and
// column of every cell, black at even coordinates and light grey between.
inline Colour withGrid(int x, int y, int zoom, Colour b) {
    const Colour grey = rgb(192, 192, 192);
    if (y % zoom == 0)
        return x % 2 == 0 ? kBlack : grey;
    if (x % zoom == 0)
        return y % 2 == 0 ? kBlack : grey;
    return b;
}

} // namespace CanvasExpectations
