#pragma once

#include "platform/Plane.h"

#include <QByteArray>

#include <optional>

// Decodes PNG data, which icon groups may hold in place of a bitmap (the
// large images of newer icons). The core decodes every other pixel format
// itself; PNG it leaves to a well-kept library behind this port. A program
// installs its decoder once at start; without one, PNG images are not shown.
class PngDecoder {
  public:
    virtual ~PngDecoder() = default;

    // The image with straight (not premultiplied) alpha: each pixel a colour
    // value with the alpha in its top byte. Empty when the data is no PNG or
    // the image is wider or taller than largestSide.
    virtual std::optional<Plane> decode(const QByteArray& png, int largestSide) const = 0;

    // Decoding is a capability of the process rather than state of a
    // document, so the one decoder is kept here for every reader to find.
    static void install(const PngDecoder* decoder);
    static const PngDecoder* installed();
};
