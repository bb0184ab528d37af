#include "fileio/IcoFile.h"

#include "fileio/DibWriter.h"
#include "fileio/IconDecoder.h"
#include "fileio/IconListing.h"
#include "fileio/ModPalette.h"
#include "fileio/PixelEncoder.h"

#include <vector>

using namespace IconLayout;

namespace {

// The header versions up to BITMAPV5HEADER; others are not bitmaps.
constexpr qint32 kLargestInfoHeader = 124;

bool editableSize(int width, int height) {
    return width == height && (width == 16 || width == 32 || width == 48);
}

IconLoadResult failure(ReadFault fault) {
    IconLoadResult result;
    result.fault = fault;
    return result;
}

IconLoadResult refusedSize(int width, int height) {
    IconLoadResult result;
    result.status = LoadStatus::BadDimensions;
    result.width = width;
    result.height = height;
    return result;
}

IconLoadResult decoded(const ByteView& in, qint64 rowsOffset, int size, int depth,
                       const ColourTable& table) {
    IconLoadResult result;
    result.width = size;
    result.height = size;
    if (!IconDecoder::decode(in, rowsOffset, size, depth, table, result.mask, result.image)) {
        result.fault = ReadFault::OutOfBounds;
        return result;
    }
    result.status = LoadStatus::Ok;
    return result;
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

// The entry of an image this program writes, placed right behind a
// one-entry directory; the colour count is 0 at every depth.
DirEntry newEntry(int width, int height, int planesField, int bitCountField, qint32 length) {
    return {width, height, 0, 0, planesField, bitCountField, length, kHeaderBytes + kEntryBytes};
}

// BITMAPINFOHEADER, colour table, colour rows and mask rows of one icon image.
void writeIconImage(QByteArray& out, const Plane& mask, const Plane& image, int depth,
                    quint32 imageSizeField) {
    DibWriter::write(out, image, depth, true, 2 * image.height(), imageSizeField);
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

IcoFile::IcoFile(QByteArray bytes, ReadFault readFault)
    : bytes_(std::move(bytes)), readFault_(readFault),
      directory_(IconDirectory::read(ByteView(bytes_))) {}

bool IcoFile::isIconFile() const {
    if (!directory_ || directory_->entries.empty())
        return false;
    const DirHeader& header = directory_->header;
    const DirEntry& first = directory_->entries.front();
    // A cursor (type 2) and an entry 256 pixels wide (width 0) are refused.
    return header.count > 0 && header.reserved == 0 && header.type == 1 && first.reserved == 0 &&
           first.height != 0 && first.width != 0 && first.bytesInRes > 0 && first.imageOffset > 0;
}

int IcoFile::count() const {
    return directory_ && directory_->header.count > 0 ? directory_->header.count : 0;
}

bool IcoFile::holdsEveryEntry() const {
    return count() > 0 && static_cast<int>(directory_->entries.size()) == count();
}

std::optional<std::vector<IconListLine>> IcoFile::listing() const {
    if (readFault_ != ReadFault::None || !holdsEveryEntry())
        return std::nullopt;
    const ByteView in(bytes_);
    std::vector<IconListLine> lines;
    lines.reserve(directory_->entries.size());
    for (const DirEntry& entry : directory_->entries) {
        const auto info = readInfoHeader(in, entry.imageOffset);
        if (!info)
            return std::nullopt;
        lines.push_back(IconListing::line(info->width, info->height, info->bitCount));
    }
    return lines;
}

IconLoadResult IcoFile::image(int index) const {
    if (readFault_ != ReadFault::None)
        return failure(readFault_);
    if (!directory_ || index < 0 || index >= static_cast<int>(directory_->entries.size()))
        return failure(ReadFault::OutOfBounds);
    const DirEntry& entry = directory_->entries[index];
    const ByteView in(bytes_);
    const auto info = readInfoHeader(in, entry.imageOffset);
    if (!info)
        return failure(ReadFault::OutOfBounds);
    if (!editableSize(info->width, info->height / 2))
        return refusedSize(info->width, info->height / 2);

    // This stands in for the system's icon loader, so it reads what that
    // loader reads: 32-bit images, the header's own size and a short table.
    const int depth = info->bitCount;
    if (info->compression != 0 || info->size < kInfoHeaderBytes ||
        info->size > kLargestInfoHeader ||
        (depth != 1 && depth != 4 && depth != 8 && depth != 24 && depth != 32))
        return failure(ReadFault::Unsupported);
    int entries = tableEntries(depth);
    if (info->coloursUsed > 0 && info->coloursUsed < static_cast<quint32>(entries))
        entries = static_cast<int>(info->coloursUsed);
    const qint64 tableOffset = static_cast<qint64>(entry.imageOffset) + info->size;
    const auto table = IconDecoder::readTable(in, tableOffset, entries);
    if (!table)
        return failure(ReadFault::OutOfBounds);
    return decoded(in, tableOffset + 4LL * entries, info->width, depth, *table);
}

IconLoadResult IcoFile::chosenImage(const IconDescription& chosen) const {
    if (readFault_ != ReadFault::None)
        return failure(readFault_);
    if (!editableSize(chosen.width, chosen.height))
        return refusedSize(chosen.width, chosen.height);
    if (!directory_ || chosen.index < 0 || chosen.index >= directory_->header.count ||
        chosen.index >= static_cast<int>(directory_->entries.size()))
        return failure(ReadFault::OutOfBounds);
    const DirEntry& entry = directory_->entries[chosen.index];
    const ByteView in(bytes_);

    // The program's own decoder takes the depth from the listing, which calls
    // 32-bit images "True Color": they are read with the 24-bit layout and
    // come out wrong. That limit is kept on purpose; one-image files go
    // through the fuller decoder above.
    const int depth = decoderDepth(chosen.bitDepth);
    // The header itself is skipped unread, so its offset is checked here.
    if (entry.imageOffset < 0)
        return failure(ReadFault::OutOfBounds);
    const qint64 tableOffset = static_cast<qint64>(entry.imageOffset) + kInfoHeaderBytes;
    const auto table = IconDecoder::readTable(in, tableOffset, tableEntries(depth));
    if (!table)
        return failure(ReadFault::OutOfBounds);
    return decoded(in, tableOffset + 4LL * tableEntries(depth), chosen.width, depth, *table);
}

QByteArray IcoFile::iconBytes(const Plane& mask, const Plane& image, int colourCount) {
    const int depth = ModPalette::bitDepthFor(colourCount);
    return singleImageFile(mask, image, colourCount, 1, 1, depth);
}

QByteArray IcoFile::cursorBytes(const Plane& mask, const Plane& image, int colourCount,
                                int hotSpotX, int hotSpotY) {
    // A cursor's entry carries the hot spot where an icon's has planes and
    // bit count.
    return singleImageFile(mask, image, colourCount, 2, hotSpotX, hotSpotY);
}

std::optional<QByteArray> IcoFile::withImageReplaced(const Plane& mask, const Plane& image,
                                                     int colourCount,
                                                     const IconDescription& chosen) const {
    // Every entry and its data are checked before anything is written.
    if (readFault_ != ReadFault::None || !writable(mask, image) || !holdsEveryEntry() ||
        chosen.index < 0 || chosen.index >= count())
        return std::nullopt;
    const int depth = ModPalette::bitDepthFor(colourCount);
    const qint32 newLength = imageLength(image, depth);
    const ByteView in(bytes_);
    std::vector<DirEntry> others;
    for (int i = 0; i < count(); ++i) {
        const DirEntry& entry = directory_->entries[i];
        if (!in.contains(entry.imageOffset, entry.bytesInRes))
            return std::nullopt;
        if (i != chosen.index)
            others.push_back(entry);
    }
    // The edited image always becomes the first entry; the others follow in
    // directory order, their data moved up behind it, and the result stays
    // within what a reader accepts.
    IconDirectory directory{directory_->header,
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
        out.append(bytes_.mid(other.imageOffset, other.bytesInRes));
    return out;
}
