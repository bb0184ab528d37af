#include "fileio/IconReader.h"

#include "fileio/IconDecoder.h"
#include "fileio/IconLayout.h"

#include <algorithm>
#include <climits>
#include <cmath>

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

QString depthSuffix(int bitCount) {
    switch (bitCount) {
    case 1:
        return QStringLiteral(" ... Monochrome");
    case 4:
        return QStringLiteral(" ... 16 Color");
    case 8:
        return QStringLiteral(" ... 256 Color");
    default:
        return QStringLiteral(" ... True Color");
    }
}

// Every size a file can give fits an int; a longer run of digits stops
// growing here instead of overflowing.
constexpr double kNumberCeiling = 1e12;

// The leading number of a text as the listing dialog reads it: blanks are
// skipped, also between digits, one decimal point is taken, and the first
// other character ends it. The value goes into an integer as every real
// number does here, halves to even, so "15.5" gives 16.
int leadingNumber(const QString& text) {
    int i = 0;
    const auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == u' ' || text[i] == u'\t'))
            ++i;
    };
    skipBlanks();
    bool negative = false;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
        negative = text[i] == u'-';
        ++i;
    }
    double value = 0;
    double place = 1; // below 1 once the decimal point is passed
    for (skipBlanks(); i < text.size(); ++i, skipBlanks()) {
        if (text[i] == u'.' && place == 1) {
            place = 0.1;
        } else if (!text[i].isDigit()) {
            break;
        } else if (place < 1) {
            value += text[i].digitValue() * place;
            place /= 10;
        } else {
            value = std::min(value * 10 + text[i].digitValue(), kNumberCeiling);
        }
    }
    const double rounded = std::nearbyint(negative ? -value : value);
    return static_cast<int>(std::clamp(rounded, double(INT_MIN), double(INT_MAX)));
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

bool IconReader::isIconFile(const QByteArray& bytes) {
    const ByteView in(bytes);
    const auto header = readHeader(in);
    const auto first = readEntry(in, 0);
    if (!header || !first)
        return false;
    // A cursor (type 2) and an entry 256 pixels wide (width 0) are refused.
    return header->count > 0 && header->reserved == 0 && header->type == 1 &&
           first->reserved == 0 && first->height != 0 && first->width != 0 &&
           first->bytesInRes > 0 && first->imageOffset > 0;
}

int IconReader::iconCount(const QByteArray& bytes) {
    const auto header = readHeader(ByteView(bytes));
    return header && header->count > 0 ? header->count : 0;
}

std::optional<std::vector<IconListLine>> IconReader::listIcons(const QByteArray& bytes) {
    const ByteView in(bytes);
    const auto header = readHeader(in);
    // The count is trusted only as far as the file holds that many entries.
    if (!header || header->count < 1 || !in.contains(0, entryOffset(header->count)))
        return std::nullopt;
    std::vector<IconListLine> lines;
    lines.reserve(header->count);
    for (int i = 0; i < header->count; ++i) {
        const auto entry = readEntry(in, i);
        const auto info = entry ? readInfoHeader(in, entry->imageOffset) : std::nullopt;
        if (!info)
            return std::nullopt;
        const int depth =
            info->bitCount == 1 || info->bitCount == 4 || info->bitCount == 8 ? info->bitCount : 24;
        // The height is halved as a real number: an odd biHeight lists as "15.5".
        lines.push_back({QString::number(info->width) + QStringLiteral(" x ") +
                             QString::number(info->height / 2.0, 'g', 12) +
                             depthSuffix(info->bitCount),
                         depth});
    }
    return lines;
}

IconLoadResult IconReader::loadSingleIcon(const QByteArray& bytes) {
    const ByteView in(bytes);
    const auto entry = readEntry(in, 0);
    const auto info = entry ? readInfoHeader(in, entry->imageOffset) : std::nullopt;
    if (!info)
        return failure(ReadFault::OutOfBounds);
    IconLoadResult refused = failure(ReadFault::None);
    refused.width = info->width;
    refused.height = info->height / 2;
    if (!editableSize(refused.width, refused.height)) {
        refused.status = LoadStatus::BadDimensions;
        return refused;
    }

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
    const qint64 tableOffset = static_cast<qint64>(entry->imageOffset) + info->size;
    const auto table = IconDecoder::readTable(in, tableOffset, entries);
    if (!table)
        return failure(ReadFault::OutOfBounds);
    return decoded(in, tableOffset + 4LL * entries, refused.width, depth, *table);
}

IconLoadResult IconReader::loadMultiIcon(const QByteArray& bytes, const IconDescription& chosen) {
    if (!editableSize(chosen.width, chosen.height)) {
        IconLoadResult refused;
        refused.status = LoadStatus::BadDimensions;
        refused.width = chosen.width;
        refused.height = chosen.height;
        return refused;
    }
    const ByteView in(bytes);
    const auto header = readHeader(in);
    if (!header || chosen.index < 0 || chosen.index >= header->count)
        return failure(ReadFault::OutOfBounds);
    const auto entry = readEntry(in, chosen.index);
    if (!entry)
        return failure(ReadFault::OutOfBounds);

    // The program's own decoder knows 1, 4, 8 and 24 bits only and takes the
    // depth from the listing, which calls 32-bit images "True Color": they are
    // read with the 24-bit layout and come out wrong. That limit is kept on
    // purpose; one-image files go through the fuller decoder above.
    const int depth =
        chosen.bitDepth == 1 || chosen.bitDepth == 4 || chosen.bitDepth == 8 ? chosen.bitDepth : 24;
    // The header itself is skipped unread, so its offset is checked here.
    if (entry->imageOffset < 0)
        return failure(ReadFault::OutOfBounds);
    const qint64 tableOffset = static_cast<qint64>(entry->imageOffset) + kInfoHeaderBytes;
    const auto table = IconDecoder::readTable(in, tableOffset, tableEntries(depth));
    if (!table)
        return failure(ReadFault::OutOfBounds);
    return decoded(in, tableOffset + 4LL * tableEntries(depth), chosen.width, depth, *table);
}

IconDescription IconReader::describeListLine(int index, const IconListLine& line) {
    const qsizetype x = line.text.indexOf(u'x');
    // Without an "x" the height is read from the whole text.
    const QString afterX = x < 0 ? line.text : line.text.mid(x + 1);
    return {index, line.itemData, leadingNumber(line.text), leadingNumber(afterX)};
}
