#pragma once

#include "fileio/ByteView.h"
#include "fileio/ModPalette.h"

#include <optional>

// Turns the stored rows of one icon image into the document's two planes.
class IconDecoder {
  public:
    // `entries` colour-table entries of blue, green, red, reserved at offset.
    static std::optional<ColourTable> readTable(const ByteView& bytes, qint64 offset, int entries);

    // Decodes the colour rows at rowsOffset and the mask rows right after
    // them. depth is 1, 4, 8, 24 or 32; indices past the table give black.
    // False, with the planes untouched, when the rows run past the bytes.
    static bool decode(const ByteView& bytes, qint64 rowsOffset, int size, int depth,
                       const ColourTable& table, Plane& mask, Plane& image);

    // Bytes that the colour and mask rows of a size x size image occupy.
    static qint64 rowsLength(int size, int depth);
};
