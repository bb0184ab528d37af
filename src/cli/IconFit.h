#pragma once

#include "platform/Plane.h"

#include <QString>

// A picture of any size made into a square icon of 16, 32 or 48 pixels, by
// the rules of pasting an oversized picture with its aspect kept.
class IconFit {
  public:
    struct Result {
        Plane mask;
        Plane image;
        // What was done, for the user; empty when the picture was kept as is.
        QString note;
    };

    // The icon size nearest the picture's larger side; 48 above it, the
    // larger of two equally near.
    static int nearestSize(int width, int height);

    // A picture larger than the icon is shrunk (nearest pixel) to the size
    // PasteFit::keepingAspect gives; a smaller one keeps its size. Either is
    // centred in a new icon, whose other pixels are transparent.
    static Result fit(const Plane& mask, const Plane& image, int size);
};
