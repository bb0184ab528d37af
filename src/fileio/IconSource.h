#pragma once

#include "fileio/IconFileTypes.h"

// A file that holds icons, read once: an .ico here, and the executables,
// icon libraries and animated cursors the extraction browser will read.
class IconSource {
  public:
    virtual ~IconSource() = default;

    virtual int count() const = 0;
    // The decoded planes of image index: the mask black where opaque and
    // white where transparent, the colour image as stored.
    virtual IconLoadResult image(int index) const = 0;
};
