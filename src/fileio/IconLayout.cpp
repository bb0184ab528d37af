#include "fileio/IconLayout.h"

namespace IconLayout {

std::optional<DirHeader> readHeader(const ByteView& bytes) {
    if (!bytes.contains(0, kHeaderBytes))
        return std::nullopt;
    return DirHeader{bytes.u16(0), bytes.u16(2), bytes.i16(4)};
}

std::optional<DirEntry> readEntry(const ByteView& bytes, int index) {
    const qint64 at = entryOffset(index);
    if (index < 0 || !bytes.contains(at, kEntryBytes))
        return std::nullopt;
    return DirEntry{bytes.u8(at),      bytes.u8(at + 1),  bytes.u8(at + 2),  bytes.u8(at + 3),
                    bytes.u16(at + 4), bytes.u16(at + 6), bytes.i32(at + 8), bytes.i32(at + 12)};
}

std::optional<InfoHeader> readInfoHeader(const ByteView& bytes, qint64 offset) {
    if (!bytes.contains(offset, kInfoHeaderBytes))
        return std::nullopt;
    return InfoHeader{bytes.i32(offset),      bytes.i32(offset + 4),  bytes.i32(offset + 8),
                      bytes.u16(offset + 14), bytes.u32(offset + 16), bytes.u32(offset + 32)};
}

} // namespace IconLayout
