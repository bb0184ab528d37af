#include "fileio/IconWriter.h"

#include "fileio/ByteWriter.h"
#include "fileio/IconDirectory.h"
#include "fileio/ModPalette.h"
#include "fileio/PixelEncoder.h"

#include <vector>

using namespace IconLayout;

namespace {

// The colour table written before an image's rows. The 2- and 16-entry
// tables are never filled, so 1- and 4-bit files are written with all-black
// tables; that is how this program has always written them, and it stays.
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

// The entry of an image this program writes, placed right behind a
// one-entry directory; the colour count is 0 at every depth.
DirEntry newEntry(int width, int height, int planesField, int bitCountField, qint32 length) {
    return {width, height, 0, 0, planesField, bitCountField, length, kHeaderBytes + kEntryBytes};
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
    const qint32 length = imageLength(image, depth);
    const DirEntry entry =
        newEntry(image.width(), image.height(), planesField, bitCountField, length);
    IconDirectory{{0, type, 1}, {entry}}.write(out);
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
                                                     int colourCount, const QByteArray& sourceBytes,
                                                     const IconDescription& chosen) {
    const auto source = IconDirectory::read(ByteView(sourceBytes));
    if (!writable(mask, image) || !source || source->header.count < 1 || chosen.index < 0 ||
        chosen.index >= source->header.count)
        return std::nullopt;
    const int count = source->header.count;
    const int depth = ModPalette::bitDepthFor(colourCount);
    const qint32 newLength = imageLength(image, depth);

    // Check every other entry and its data before writing anything.
    if (static_cast<int>(source->entries.size()) < count)
        return std::nullopt;
    const ByteView in(sourceBytes);
    std::vector<DirEntry> others;
    for (int i = 0; i < count; ++i) {
        const DirEntry& entry = source->entries[i];
        if (!in.contains(entry.imageOffset, entry.bytesInRes))
            return std::nullopt;
        if (i != chosen.index)
            others.push_back(entry);
    }
    // The edited image always becomes the first entry; the others follow in
    // directory order, their data moved up behind it, and the result stays
    // within what a reader accepts.
    IconDirectory directory{source->header,
                            {newEntry(chosen.width, chosen.height, 1, depth, newLength)}};
    directory.entries.insert(directory.entries.end(), others.begin(), others.end());
    qint64 offset = directory.size();
    for (DirEntry& entry : directory.entries) {
        entry.imageOffset = static_cast<qint32>(offset);
        offset += entry.bytesInRes;
        if (offset > kMaxFileBytes)
            return std::nullopt;
    }

    QByteArray out;
    out.reserve(offset);
    directory.write(out);
    writeIconImage(out, mask, image, depth, static_cast<quint32>(newLength));
    for (const DirEntry& other : others)
        out.append(sourceBytes.mid(other.imageOffset, other.bytesInRes));
    return out;
}
