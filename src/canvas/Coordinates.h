#pragma once

#include <QString>

// Canvas pixels to icon pixels; all divisions truncate.
namespace Coordinates {
inline int iconPixel(int v, int zoom) {
    return v / zoom;
}
inline int cellCorner(int v, int zoom) {
    return v / zoom * zoom;
}
inline int cellCentre(int v, int zoom) {
    return v / zoom * zoom + zoom / 2;
}
inline int clampToCanvas(int v) {
    return v < 0 ? 0 : (v > 384 ? 384 : v);
}

// "05" for 5: at least two digits.
QString twoDigits(int value);
// "05, 11"
QString pointText(int x, int y);
// "03 x 04"
QString sizeText(int width, int height);
} // namespace Coordinates
