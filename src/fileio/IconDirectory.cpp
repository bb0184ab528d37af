#include "fileio/IconDirectory.h"

#include "fileio/ByteWriter.h"

#include <algorithm>

using namespace IconLayout;

std::optional<IconDirectory> IconDirectory::read(const ByteView& bytes) {
    const auto header = readHeader(bytes);
    if (!header)
        return std::nullopt;
    IconDirectory directory{*header, {}};
    // The first entry is read whatever the count says, since the one-image
    // decode looks at that entry alone; the header test refuses the count.
    const int counted = std::max(header->count, 1);
    for (int i = 0; i < counted; ++i) {
        const auto entry = readEntry(bytes, i);
        if (!entry)
            break;
        directory.entries.push_back(*entry);
    }
    return directory;
}

void IconDirectory::write(QByteArray& out) const {
    ByteWriter w(out);
    w.u16(static_cast<quint32>(header.reserved));
    w.u16(static_cast<quint32>(header.type));
    w.u16(static_cast<quint32>(header.count));
    for (const DirEntry& e : entries) {
        w.u8(static_cast<quint32>(e.width));
        w.u8(static_cast<quint32>(e.height));
        w.u8(static_cast<quint32>(e.colourCount));
        w.u8(static_cast<quint32>(e.reserved));
        w.u16(static_cast<quint32>(e.planes));
        w.u16(static_cast<quint32>(e.bitCount));
        w.i32(e.bytesInRes);
        w.i32(e.imageOffset);
    }
}

qint64 IconDirectory::size() const {
    return kHeaderBytes + kEntryBytes * static_cast<qint64>(entries.size());
}
