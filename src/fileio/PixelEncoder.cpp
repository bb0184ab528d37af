#include "fileio/PixelEncoder.h"

#include "fileio/IconLayout.h"

#include <unordered_map>

namespace {

Colour bgrOf(Colour c) {
    return c & 0xFFFFFF;
}

// Index of the first table entry in [first, last] with the colour's blue,
// green and red, so that a colour held twice takes its lower entry.
std::unordered_map<Colour, int> firstIndices(const ColourTable& table, int first, int last) {
    std::unordered_map<Colour, int> index;
    for (int i = last; i >= first; --i)
        if (i < static_cast<int>(table.size()))
            index[bgrOf(table[i])] = i;
    return index;
}

void padRow(QByteArray& out, qint64 rowStart, qint64 stride) {
    while (out.size() - rowStart < stride)
        out.append('\0');
}

} // namespace

void PixelEncoder::encode(const Plane& picture, int depth, const ColourTable& table,
                          QByteArray& out) {
    switch (depth) {
    case 1:
        return encode1(picture, out);
    case 4:
        return encode4(picture, table, out);
    case 8:
        return encode8(picture, table, out);
    default:
        return encode24(picture, out);
    }
}

void PixelEncoder::encode1(const Plane& picture, QByteArray& out) {
    const qint64 stride = IconLayout::rowBytes(picture.width(), 1);
    for (int y = picture.height() - 1; y >= 0; --y) {
        const qint64 rowStart = out.size();
        int byte = 0;
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == kWhite)
                byte |= 0x80 >> (x % 8);
            if (x % 8 == 7 || x == picture.width() - 1) {
                out.append(static_cast<char>(byte));
                byte = 0;
            }
        }
        padRow(out, rowStart, stride);
    }
}

void PixelEncoder::encode4(const Plane& picture, const ColourTable& table16, QByteArray& out) {
    const auto index = firstIndices(table16, 0, 15);
    const qint64 stride = IconLayout::rowBytes(picture.width(), 4);
    // A colour the table lacks keeps the index last written on its side of
    // the byte, through the whole picture.
    int left = 0;
    int right = 0;
    for (int y = picture.height() - 1; y >= 0; --y) {
        const qint64 rowStart = out.size();
        for (int x = 0; x < picture.width(); x += 2) {
            if (const auto found = index.find(bgrOf(picture.pixel(x, y))); found != index.end())
                left = found->second;
            if (x + 1 < picture.width()) {
                const auto found = index.find(bgrOf(picture.pixel(x + 1, y)));
                if (found != index.end())
                    right = found->second;
            }
            out.append(static_cast<char>(left << 4 | (x + 1 < picture.width() ? right : 0)));
        }
        padRow(out, rowStart, stride);
    }
}

void PixelEncoder::encode8(const Plane& picture, const ColourTable& table256, QByteArray& out) {
    const auto index = firstIndices(table256, 1, 254);
    const qint64 stride = IconLayout::rowBytes(picture.width(), 8);
    // Black and white always go to 0 and 255, whatever the table holds there;
    // a colour the table lacks keeps the previous pixel's index.
    int previous = 0;
    for (int y = picture.height() - 1; y >= 0; --y) {
        const qint64 rowStart = out.size();
        for (int x = 0; x < picture.width(); ++x) {
            const Colour c = bgrOf(picture.pixel(x, y));
            if (c == kBlack) {
                previous = 0;
            } else if (c == kWhite) {
                previous = 255;
            } else if (const auto found = index.find(c); found != index.end()) {
                previous = found->second;
            }
            out.append(static_cast<char>(previous));
        }
        padRow(out, rowStart, stride);
    }
}

void PixelEncoder::encode24(const Plane& picture, QByteArray& out) {
    const qint64 stride = IconLayout::rowBytes(picture.width(), 24);
    for (int y = picture.height() - 1; y >= 0; --y) {
        const qint64 rowStart = out.size();
        for (int x = 0; x < picture.width(); ++x) {
            const Colour c = picture.pixel(x, y);
            out.append(static_cast<char>(blueOf(c)));
            out.append(static_cast<char>(greenOf(c)));
            out.append(static_cast<char>(redOf(c)));
        }
        padRow(out, rowStart, stride);
    }
}
