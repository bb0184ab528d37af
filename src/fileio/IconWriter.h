#pragma once

#include "fileio/IconFileTypes.h"

#include <QByteArray>
#include <optional>

// Builds icon, cursor and bitmap files in memory. The colour count (from
// ModPalette::countColours) picks the depth: 2 -> 1 bit, 16 -> 4, 256 -> 8,
// anything else 24. An empty result means the planes cannot be written
// (empty, of different sizes, or wider than a directory entry can say).
class IconWriter {
  public:
    static QByteArray iconBytes(const Plane& mask, const Plane& image, int colourCount);
    static QByteArray cursorBytes(const Plane& mask, const Plane& image, int colourCount,
                                  int hotSpotX, int hotSpotY);
    static QByteArray bitmapBytes(const Plane& picture, int colourCount);
    // The source file with the chosen image replaced by the planes and moved
    // to the front; nullopt when the source's directory or data is unreadable.
    static std::optional<QByteArray> multiIconBytes(const Plane& mask, const Plane& image,
                                                    int colourCount, const QByteArray& source,
                                                    const IconDescription& chosen);
};
