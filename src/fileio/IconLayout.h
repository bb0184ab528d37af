#pragma once

#include "fileio/ByteView.h"

#include <optional>

// The pieces of the icon file layout: a 6-byte directory header, 16-byte
// directory entries, then per image a 40-byte BITMAPINFOHEADER, the colour
// table, the colour rows and the mask rows, all bottom-up and 4-byte padded.
namespace IconLayout {

constexpr qint64 kHeaderBytes = 6;
constexpr qint64 kEntryBytes = 16;
constexpr qint64 kInfoHeaderBytes = 40;

// No icon file this program reads or writes comes near this: a multi-image
// icon of ten 48 x 48 true-colour images is under 80 KB, and even files with
// large modern images stay far below it. Larger input is refused unread.
constexpr qint64 kMaxFileBytes = 16 * 1024 * 1024;
// Executables and libraries that hold icons are much larger (a system's
// image library can pass 50 MB); their readers touch only the resource
// directory and the icons it names, but the file is read whole, so it still
// has a bound.
constexpr qint64 kMaxLibraryBytes = 256 * 1024 * 1024;

struct DirHeader {
    int reserved = 0;
    int type = 0;
    int count = 0; // read as signed
};

struct DirEntry {
    int width = 0;
    int height = 0;
    int colourCount = 0;
    int reserved = 0;
    int planes = 0;
    int bitCount = 0;
    qint32 bytesInRes = 0;
    qint32 imageOffset = 0;
};

struct InfoHeader {
    qint32 size = 0;
    qint32 width = 0;
    qint32 height = 0;
    int bitCount = 0;
    quint32 compression = 0;
    quint32 coloursUsed = 0;
};

inline qint64 entryOffset(int index) {
    return kHeaderBytes + kEntryBytes * index;
}

std::optional<DirHeader> readHeader(const ByteView& bytes);
std::optional<DirEntry> readEntry(const ByteView& bytes, int index);
std::optional<InfoHeader> readInfoHeader(const ByteView& bytes, qint64 offset);

// Bytes of one stored row of `width` pixels at `depth` bits, padded to 4.
inline qint64 rowBytes(qint64 width, int depth) {
    return (width * depth + 31) / 32 * 4;
}
// Colour-table entries that precede the rows: 2, 16, 256, none above 8 bits.
inline int tableEntries(int depth) {
    return depth <= 8 ? 1 << depth : 0;
}

// The program's own decoder knows 1, 4 and 8 bits; every other depth is
// listed as, and read as, 24 bits.
inline int decoderDepth(int bitCount) {
    return bitCount == 1 || bitCount == 4 || bitCount == 8 ? bitCount : 24;
}

} // namespace IconLayout
