#pragma once

#include "platform/Plane.h"

#include <QByteArray>

// Windows bitmaps, written only: one picture's rows under a
// BITMAPFILEHEADER and a BITMAPINFOHEADER, with no mask.
class BmpFile {
  public:
    // The colour count (ModPalette::countColours) picks the depth: 2 -> 1
    // bit, 16 -> 4, 256 -> 8, anything else 24. Empty for an empty picture.
    static QByteArray bytes(const Plane& picture, int colourCount);
};
