#pragma once

#include "platform/Plane.h"

#include <QByteArray>

// The device-independent bitmap inside both an icon image and a .bmp file:
// a BITMAPINFOHEADER, the colour table of the depth, then the rows bottom-up.
class DibWriter {
  public:
    // heightField is the header's height, which in an icon also counts the
    // mask rows that the caller appends. forIcon picks the 8-bit palette.
    static void write(QByteArray& out, const Plane& picture, int depth, bool forIcon,
                      qint32 heightField, quint32 imageSizeField);
};
