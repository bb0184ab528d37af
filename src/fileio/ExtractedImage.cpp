#include "fileio/ExtractedImage.h"

#include "fileio/IconDecoder.h"
#include "fileio/IconLayout.h"
#include "platform/PngDecoder.h"
#include "platform/Raster.h"

using namespace IconLayout;

namespace {

// The header versions up to BITMAPV5HEADER; others are not bitmaps.
constexpr qint32 kLargestInfoHeader = 124;
// The widest image an icon directory can name.
constexpr int kLargestSide = 256;

IconLoadResult failure(ReadFault fault) {
    IconLoadResult result;
    result.fault = fault;
    return result;
}

bool isPng(const ByteView& bytes, qint64 offset) {
    return bytes.contains(offset, 4) && bytes.u32(offset) == 0x474E5089;
}

// Alpha below one half hides the pixel: the mask turns transparent and the
// colour black, the pair that leaves the screen unchanged.
void hideFaintPixels(const ByteView& bytes, qint64 rowsOffset, int size, Plane& mask,
                     Plane& image) {
    bool anyAlpha = false;
    for (qint64 i = 0; i < static_cast<qint64>(size) * size && !anyAlpha; ++i)
        anyAlpha = bytes.u8(rowsOffset + 4 * i + 3) != 0;
    // All-zero alpha means the image has none and the AND mask alone counts.
    if (!anyAlpha)
        return;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const qint64 stored = size - 1 - y;
            if (bytes.u8(rowsOffset + (stored * size + x) * 4 + 3) < 128) {
                mask.setPixel(x, y, kWhite);
                image.setPixel(x, y, kBlack);
            }
        }
}

// A PNG image's planes: alpha below one half is transparent, the rest opaque
// with its colour weighted by alpha, as for a 32-bit bitmap with alpha.
IconLoadResult fromPng(const ByteView& bytes, const GroupMember& member) {
    const PngDecoder* decoder = PngDecoder::installed();
    const std::optional<Plane> pixels =
        decoder ? decoder->decode(bytes.mid(member.offset, member.length), kLargestSide)
                : std::nullopt;
    if (!pixels || pixels->width() != pixels->height())
        return failure(ReadFault::Unsupported);
    const int size = pixels->width();
    IconLoadResult result;
    result.mask.reset(size, size, kWhite);
    result.image.reset(size, size, kBlack);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const Colour pixel = pixels->pixel(x, y);
            const int alpha = static_cast<int>(pixel >> 24);
            if (alpha < 128)
                continue;
            const auto scale = [alpha](int channel) { return (channel * alpha + 127) / 255; };
            result.mask.setPixel(x, y, kBlack);
            result.image.setPixel(
                x, y, rgb(scale(redOf(pixel)), scale(greenOf(pixel)), scale(blueOf(pixel))));
        }
    result.status = LoadStatus::Ok;
    return result;
}

Plane stretched(const Plane& source) {
    if (source.width() == ExtractedImage::kSize)
        return source;
    Plane out(ExtractedImage::kSize, ExtractedImage::kSize);
    stretchBlt(out, 0, 0, ExtractedImage::kSize, ExtractedImage::kSize, source, 0, 0,
               source.width(), source.height(), RasterOp::Copy);
    return out;
}

// A bitmap image's planes at its own size.
IconLoadResult fromBitmap(const ByteView& bytes, const GroupMember& member) {
    const auto info = readInfoHeader(bytes, member.offset);
    if (!info)
        return failure(ReadFault::OutOfBounds);
    const int size = info->width;
    const int depth = info->bitCount;
    if (info->compression != 0 || info->size < kInfoHeaderBytes ||
        info->size > kLargestInfoHeader || size < 1 || size > kLargestSide ||
        info->height / 2 != size ||
        (depth != 1 && depth != 4 && depth != 8 && depth != 24 && depth != 32))
        return failure(ReadFault::Unsupported);

    int entries = tableEntries(depth);
    if (info->coloursUsed > 0 && info->coloursUsed < static_cast<quint32>(entries))
        entries = static_cast<int>(info->coloursUsed);
    const qint64 tableOffset = member.offset + info->size;
    const auto table = IconDecoder::readTable(bytes, tableOffset, entries);
    if (!table)
        return failure(ReadFault::OutOfBounds);
    const qint64 rowsOffset = tableOffset + 4LL * entries;
    IconLoadResult result;
    if (!IconDecoder::decode(bytes, rowsOffset, size, depth, *table, result.mask, result.image))
        return failure(ReadFault::OutOfBounds);
    if (depth == 32)
        hideFaintPixels(bytes, rowsOffset, size, result.mask, result.image);
    result.status = LoadStatus::Ok;
    return result;
}

} // namespace

IconLoadResult ExtractedImage::decode(const ByteView& bytes, const GroupMember& member) {
    if (!bytes.contains(member.offset, member.length))
        return failure(ReadFault::OutOfBounds);
    IconLoadResult result =
        isPng(bytes, member.offset) ? fromPng(bytes, member) : fromBitmap(bytes, member);
    if (!result.ok())
        return result;
    result.mask = stretched(result.mask);
    result.image = stretched(result.image);
    result.width = kSize;
    result.height = kSize;
    return result;
}

IconLoadResult ExtractedImage::fromGroup(const ByteView& bytes,
                                         const std::vector<GroupMember>& group) {
    const int chosen = IconGroup::pick(group);
    if (chosen < 0)
        return failure(ReadFault::OutOfBounds);
    return decode(bytes, group[chosen]);
}
