#pragma once

#include "platform/Colour.h"

#include <QByteArray>
#include <vector>

// Assembles icon files field by field, so that the reader is tested on files
// this program did not write, malformed ones included.
class IcoBuilder {
  public:
    struct Entry {
        int width = 16, height = 16, colourCount = 0, reserved = 0, planes = 1, bitCount = 0;
        qint64 bytesInRes = 0, imageOffset = 0;
    };
    struct Info {
        qint64 size = 40, width = 16, height = 32;
        int bitCount = 8;
        qint64 compression = 0, coloursUsed = 0;
    };

    IcoBuilder& u8(int v);
    IcoBuilder& u16(int v);
    IcoBuilder& u32(qint64 v);
    IcoBuilder& header(int reserved, int type, int count);
    IcoBuilder& entry(const Entry& e);
    IcoBuilder& info(const Info& i);
    // Blue, green, red, 0 per colour.
    IcoBuilder& table(const std::vector<Colour>& colours);
    IcoBuilder& fill(qint64 count, int byte);
    IcoBuilder& append(const QByteArray& more);

    QByteArray bytes;
};

// One square image as stored in a file, its rows bottom-up and zeroed until
// set; the colour rows hold table indices below 24 bits.
class StoredImage {
  public:
    StoredImage(int size, int depth, std::vector<Colour> table = {});

    // Pixel (x, y) counted from the top, as the document sees it.
    void setIndex(int x, int y, int index);
    void setColour(int x, int y, Colour c);
    void setTransparent(int x, int y);

    // Byte offsets of a stored row: row 0 is the bottom one.
    qint64 colourRowBytes() const;
    qint64 maskRowBytes() const;

    // BITMAPINFOHEADER, table, colour rows, mask rows.
    QByteArray data() const;

    int size, depth;
    std::vector<Colour> table;
    QByteArray colourRows, maskRows;
};

// A whole file of the images with a correct directory; type 1 is an icon.
QByteArray icoFile(const std::vector<StoredImage>& images, int type = 1);
