#pragma once

#include "fileio/IconFileTypes.h"

// The lines the multi-image dialog lists and what choosing one gives back.
class IconListing {
  public:
    // "32 x 32 ... 256 Color" from an image's BITMAPINFOHEADER fields.
    static IconListLine line(qint32 width, qint32 doubledHeight, int bitCount);
    // The leading number of the text as width, the number after the first
    // "x" as height.
    static IconDescription describe(int index, const IconListLine& line);
};
