#pragma once

#include "canvas/Resources.h"

// What the canvas should show, worked out cell by cell from the offset of a
// pixel inside its cell.
namespace CanvasExpectations {

// The empty back buffer: white at the cell's first and last row and column,
// the top-left of the hatch pattern in between.
inline Colour background(int x, int y, int zoom) {
    const int ox = x % zoom, oy = y % zoom;
    if (ox == 0 || oy == 0 || ox == zoom - 1 || oy == zoom - 1)
        return kWhite;
    return Resources::transparentPattern().pixel(ox - 1, oy - 1);
}

// The dotted grid at a pixel of a grid line: black and grey alternate along
// the line, starting black at 0. Every crossing is at even coordinates.
inline Colour gridDot(int alongLine) {
    return alongLine % 2 == 0 ? kBlack : kGridGrey;
}

inline bool onGrid(int x, int y, int zoom) {
    return x % zoom == 0 || y % zoom == 0;
}

// PicMain over a back buffer pixel b: the grid where it runs, b elsewhere.
inline Colour withGrid(int x, int y, int zoom, Colour b) {
    if (y % zoom == 0)
        return gridDot(x);
    if (x % zoom == 0)
        return gridDot(y);
    return b;
}

} // namespace CanvasExpectations
