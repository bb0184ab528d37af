#pragma once

#include "platform/PngDecoder.h"

// PNG decoding by Qt's image reader. It needs QtGui but no window, so the
// command-line tool can use it as well as the program.
class QtPngDecoder : public PngDecoder {
  public:
    std::optional<Plane> decode(const QByteArray& png, int largestSide) const override;
};
