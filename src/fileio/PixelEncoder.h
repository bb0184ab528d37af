#pragma once

#include "fileio/ModPalette.h"

#include <QByteArray>

// Writes a picture's rows bottom-up, as the colour or mask bitmap of a file.
class PixelEncoder {
  public:
    // depth 1, 4, 8 or 24; the table is the one written before the rows.
    static void encode(const Plane& picture, int depth, const ColourTable& table, QByteArray& out);

    // 1 where a pixel is exactly white: also every AND mask.
    static void encode1(const Plane& picture, QByteArray& out);
    static void encode4(const Plane& picture, const ColourTable& table16, QByteArray& out);
    static void encode8(const Plane& picture, const ColourTable& table256, QByteArray& out);
    static void encode24(const Plane& picture, QByteArray& out);
};
