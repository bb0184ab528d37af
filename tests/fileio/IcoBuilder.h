#pragma once

#include "platform/Plane.h"

#include <QByteArray>
#include <vector>

// Assembles icon files field by field, so that the reader is tested on files
// this program did not write, malformed ones included.
struct IcoBuilder {
    IcoBuilder& u8(int v) {
        bytes.append(static_cast<char>(v & 0xFF));
        return *this;
    }
    IcoBuilder& u16(int v) { return u8(v).u8(v >> 8); }
    IcoBuilder& u32(qint64 v) { return u16(static_cast<int>(v)).u16(static_cast<int>(v >> 16)); }
    IcoBuilder& header(int type, int count) { return u16(0).u16(type).u16(count); }
    // A square image's directory entry: no colour count, one plane.
    IcoBuilder& entry(int size, int bitCount, qint64 bytesInRes, qint64 imageOffset) {
        return u8(size).u8(size).u16(0).u16(1).u16(bitCount).u32(bytesInRes).u32(imageOffset);
    }
    // A BITMAPINFOHEADER of 40 bytes with every other field 0.
    IcoBuilder& info(qint64 width, qint64 height, int bitCount, qint64 imageSize = 0) {
        u32(40).u32(width).u32(height).u16(1).u16(bitCount).u32(0).u32(imageSize);
        return u32(0).u32(0).u32(0).u32(0);
    }

    QByteArray bytes;
};

// Little-endian bytes of a value, for patching a field of a file.
inline QByteArray le(qint64 value, int length) {
    return IcoBuilder().u32(value).bytes.left(length);
}

// One square image as stored in a file, its rows bottom-up and zeroed until
// set; below 24 bits the colour rows hold indices into the table.
struct StoredImage {
    StoredImage(int size, int depth, std::vector<Colour> table = {});

    // (x, y) counted from the top, as the document sees it.
    void setIndex(int x, int y, int index);
    void setColour(int x, int y, Colour c) {
        const qint64 at = (size - 1 - y) * colourRowBytes() + static_cast<qint64>(x) * (depth / 8);
        colourRows.replace(at, 3, IcoBuilder().u8(blueOf(c)).u8(greenOf(c)).u8(redOf(c)).bytes);
    }
    void setTransparent(int x, int y) {
        char& byte = maskRows[(size - 1 - y) * maskRowBytes() + x / 8];
        byte = static_cast<char>(byte | 0x80 >> (x % 8));
    }
    qint64 colourRowBytes() const { return (size * depth + 31) / 32 * 4; }
    qint64 maskRowBytes() const { return (size + 31) / 32 * 4; }
    // BITMAPINFOHEADER, table, colour rows, mask rows.
    QByteArray data() const;

    int size, depth;
    std::vector<Colour> table;
    QByteArray colourRows, maskRows;
};

// A whole file of the images with a correct directory; type 1 is an icon.
QByteArray icoFile(const std::vector<StoredImage>& images, int type = 1);

// A stored image and the planes a document must hold once it is opened,
// written side by side. Below 24 bits the table holds distinct colours, black
// first and white last; (0, 0) and (size - 1, 0) are transparent, (5, 0) and
// (6, 0) inverting: a colour, and white, on a white mask.
struct TestIcon {
    TestIcon(int size, int depth);
    QByteArray file(int type = 1) const { return icoFile({stored}, type); }

    StoredImage stored;
    Plane mask, image;

  private:
    void set(int x, int y, Colour c, bool masked = false);
};
