#include "fileio/IconDecoder.h"

#include "fileio/IconLayout.h"

namespace {

Colour tableColour(const ColourTable& table, int index) {
    return index < static_cast<int>(table.size()) ? table[index] : kBlack;
}

// One pixel of a stored colour row.
Colour storedPixel(const ByteView& bytes, qint64 row, int x, int depth, const ColourTable& table) {
    switch (depth) {
    case 1:
        return tableColour(table, (bytes.u8(row + x / 8) >> (7 - x % 8)) & 1);
    case 4: {
        const int byte = bytes.u8(row + x / 2);
        return tableColour(table, x % 2 == 0 ? byte >> 4 : byte & 0x0F);
    }
    case 8:
        return tableColour(table, bytes.u8(row + x));
    default: {
        const qint64 at = row + static_cast<qint64>(x) * (depth / 8);
        return rgb(bytes.u8(at + 2), bytes.u8(at + 1), bytes.u8(at));
    }
    }
}

bool hasAlpha(const ByteView& bytes, qint64 rowsOffset, int size) {
    for (qint64 i = 0; i < static_cast<qint64>(size) * size; ++i)
        if (bytes.u8(rowsOffset + 4 * i + 3) != 0)
            return true;
    return false;
}

// What drawing the colour image alone over black shows for an alpha pixel.
Colour overBlack(Colour c, int alpha) {
    const auto scale = [alpha](int channel) { return (channel * alpha + 127) / 255; };
    return rgb(scale(redOf(c)), scale(greenOf(c)), scale(blueOf(c)));
}

} // namespace

std::optional<ColourTable> IconDecoder::readTable(const ByteView& bytes, qint64 offset,
                                                  int entries) {
    if (!bytes.contains(offset, 4LL * entries))
        return std::nullopt;
    ColourTable table(entries);
    for (int i = 0; i < entries; ++i) {
        const qint64 at = offset + 4LL * i;
        table[i] = rgb(bytes.u8(at + 2), bytes.u8(at + 1), bytes.u8(at));
    }
    return table;
}

qint64 IconDecoder::rowsLength(int size, int depth) {
    return (IconLayout::rowBytes(size, depth) + IconLayout::rowBytes(size, 1)) * size;
}

bool IconDecoder::decode(const ByteView& bytes, qint64 rowsOffset, int size, int depth,
                         const ColourTable& table, Plane& mask, Plane& image) {
    if (size <= 0 || !bytes.contains(rowsOffset, rowsLength(size, depth)))
        return false;
    const qint64 colourStride = IconLayout::rowBytes(size, depth);
    const qint64 maskStride = IconLayout::rowBytes(size, 1);
    const qint64 maskOffset = rowsOffset + colourStride * size;
    // A 32-bit image whose alpha bytes are all zero has no alpha channel and
    // is drawn as stored; otherwise the colour is weighted by alpha, as the
    // image alone is drawn onto the black colour plane.
    const bool alpha = depth == 32 && hasAlpha(bytes, rowsOffset, size);

    mask.reset(size, size, kWhite);
    image.reset(size, size, kBlack);
    // Rows are stored bottom-up: the first stored row is y = size - 1.
    for (int y = size - 1; y >= 0; --y) {
        const qint64 stored = size - 1 - y;
        const qint64 colourRow = rowsOffset + stored * colourStride;
        const qint64 maskRow = maskOffset + stored * maskStride;
        for (int x = 0; x < size; ++x) {
            const bool transparent = (bytes.u8(maskRow + x / 8) >> (7 - x % 8)) & 1;
            mask.setPixel(x, y, transparent ? kWhite : kBlack);
            Colour c = storedPixel(bytes, colourRow, x, depth, table);
            if (alpha)
                c = overBlack(c, bytes.u8(colourRow + 4LL * x + 3));
            image.setPixel(x, y, c);
        }
    }
    return true;
}
