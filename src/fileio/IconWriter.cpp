#include "fileio/IconWriter.h"

#include "fileio/ByteWriter.h"
#include "fileio/IconLayout.h"
#include "fileio/ModPalette.h"
#include "fileio/PixelEncoder.h"

#include <vector>

using namespace IconLayout;

namespace {

// The colour table written before an image's rows. The 2- and 16-entry
// tables are never filled, so 1- and 4-bit files are written with all-black
// tables. Kept on purpose: users compare the files this editor writes byte
// for byte with ones it wrote before, and a new table would change every 1-
// and 4-bit file.
ColourTable tableFor(int depth, const Plane& image, bool forIcon) {
    if (depth == 8)
        return forIcon ? ModPalette::buildIconPalette(image)
                       : ModPalette::buildBitmapPalette(image);
    return ModPalette::blackTable(tableEntries(depth));
}

bool writable(const Plane& mask, const Plane& image) {
    return !image.isEmpty() && mask.width() == image.width() && mask.height() == image.height() &&
           image.width() <= 255 && image.height() <= 255;
}

qint32 imageLength(const Plane& image, int depth) {
    return static_cast<qint32>(kInfoHeaderBytes + 4 * tableEntries(depth) +
                               (rowBytes(image.width(), depth) + rowBytes(image.width(), 1)) *
                                   image.height());
}

void writeTable(ByteWriter& w, const ColourTable& table) {
    for (const Colour c : table) {
        w.u8(static_cast<quint32>(blueOf(c)));
        w.u8(static_cast<quint32>(greenOf(c)));
        w.u8(static_cast<quint32>(redOf(c)));
        w.u8(0);
    }
}

void writeInfoHeader(ByteWriter& w, qint32 width, qint32 height, int depth, quint32 imageSize) {
    w.u32(kInfoHeaderBytes);
    w.i32(width);
    w.i32(height);
    w.u16(1);
    w.u16(static_cast<quint32>(depth));
    w.u32(0); // no compression
    w.u32(imageSize);
    for (int i = 0; i < 4; ++i) // resolutions, colours used, colours important
        w.u32(0);
}

// BITMAPINFOHEADER, colour table, colour rows and mask rows of one icon image.
void writeIconImage(QByteArray& out, const Plane& mask, const Plane& image, int depth,
                    quint32 imageSizeField) {
    ByteWriter w(out);
    writeInfoHeader(w, image.width(), 2 * image.height(), depth, imageSizeField);
    const ColourTable table = tableFor(depth, image, true);
    writeTable(w, table);
    PixelEncoder::encode(image, depth, table, out);
    PixelEncoder::encode1(mask, out);
}

QByteArray singleImageFile(const Plane& mask, const Plane& image, int colourCount, int type,
                           int planesField, int bitCountField) {
    QByteArray out;
    if (!writable(mask, image))
        return out;
    const int depth = ModPalette::bitDepthFor(colourCount);
    ByteWriter w(out);
    w.u16(0);
    w.u16(static_cast<quint32>(type));
    w.u16(1);
    w.u8(static_cast<quint32>(image.width()));
    w.u8(static_cast<quint32>(image.height()));
    w.u8(0); // colour count, 0 at every depth
    w.u8(0);
    w.u16(static_cast<quint32>(planesField));
    w.u16(static_cast<quint32>(bitCountField));
    w.i32(imageLength(image, depth));
    w.u32(kHeaderBytes + kEntryBytes);
    writeIconImage(out, mask, image, depth, 0);
    return out;
}

} // namespace

QByteArray IconWriter::iconBytes(const Plane& mask, const Plane& image, int colourCount) {
    const int depth = ModPalette::bitDepthFor(colourCount);
    return singleImageFile(mask, image, colourCount, 1, 1, depth);
}

QByteArray IconWriter::cursorBytes(const Plane& mask, const Plane& image, int colourCount,
                                   int hotSpotX, int hotSpotY) {
    // A cursor's entry carries the hot spot where an icon's has planes and
    // bit count.
    return singleImageFile(mask, image, colourCount, 2, hotSpotX, hotSpotY);
}

QByteArray IconWriter::bitmapBytes(const Plane& picture, int colourCount) {
    QByteArray out;
    if (picture.isEmpty())
        return out;
    const int depth = ModPalette::bitDepthFor(colourCount);
    const qint64 pixelOffset = kBitmapFileHeaderBytes + kInfoHeaderBytes + 4 * tableEntries(depth);
    const qint64 imageSize = rowBytes(picture.width(), depth) * picture.height();
    ByteWriter w(out);
    w.u8('B');
    w.u8('M');
    w.u32(static_cast<quint32>(pixelOffset + imageSize));
    w.u16(0);
    w.u16(0);
    w.u32(static_cast<quint32>(pixelOffset));
    writeInfoHeader(w, picture.width(), picture.height(), depth, static_cast<quint32>(imageSize));
    const ColourTable table = tableFor(depth, picture, false);
    writeTable(w, table);
    PixelEncoder::encode(picture, depth, table, out);
    return out;
}

std::optional<QByteArray> IconWriter::multiIconBytes(const Plane& mask, const Plane& image,
                                                     int colourCount, const QByteArray& source,
                                                     const IconDescription& chosen) {
    const ByteView in(source);
    const auto header = readHeader(in);
    if (!writable(mask, image) || !header || header->count < 1 || chosen.index < 0 ||
        chosen.index >= header->count)
        return std::nullopt;
    const int count = header->count;
    const int depth = ModPalette::bitDepthFor(colourCount);
    const qint32 newLength = imageLength(image, depth);

    // Check every other entry and its data before writing anything, and keep
    // the result within what a reader accepts.
    std::vector<DirEntry> others;
    qint64 total = entryOffset(count) + newLength;
    for (int i = 0; i < count; ++i) {
        const auto entry = readEntry(in, i);
        if (!entry || !in.contains(entry->imageOffset, entry->bytesInRes))
            return std::nullopt;
        if (i == chosen.index)
            continue;
        others.push_back(*entry);
        total += entry->bytesInRes;
        if (total > kMaxFileBytes)
            return std::nullopt;
    }

    QByteArray out;
    out.reserve(total);
    ByteWriter w(out);
    out.append(source.left(kHeaderBytes));
    // The edited image always becomes the first entry.
    w.u8(static_cast<quint32>(chosen.width));
    w.u8(static_cast<quint32>(chosen.height));
    w.u8(0);
    w.u8(0);
    w.u16(1);
    w.u16(static_cast<quint32>(depth));
    w.i32(newLength);
    w.u32(static_cast<quint32>(entryOffset(count)));
    for (int i = 0; i < count; ++i)
        if (i != chosen.index)
            out.append(source.mid(entryOffset(i), kEntryBytes));
    writeIconImage(out, mask, image, depth, static_cast<quint32>(newLength));
    qint64 offset = entryOffset(count) + newLength;
    for (std::size_t k = 0; k < others.size(); ++k) {
        out.append(source.mid(others[k].imageOffset, others[k].bytesInRes));
        // The offset field of directory slot k + 1.
        w.patchU32(entryOffset(static_cast<int>(k) + 1) + 12, static_cast<quint32>(offset));
        offset += others[k].bytesInRes;
    }
    return out;
}
