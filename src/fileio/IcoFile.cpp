#include "fileio/IcoFile.h"

#include "fileio/IconDecoder.h"
#include "fileio/IconListing.h"

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

std::optional<std::vector<IconListLine>> IcoFile::listing() const {
    // The count is trusted only as far as the file holds that many entries.
    if (readFault_ != ReadFault::None || count() == 0 ||
        static_cast<int>(directory_->entries.size()) < count())
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
