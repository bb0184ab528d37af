#pragma once

#include "fileio/IconLayout.h"

#include <QByteArray>
#include <optional>
#include <vector>

// The directory that opens an .ico or .cur file: a 6-byte header, then one
// 16-byte entry per image. Every directory this program reads is parsed here
// and every one it writes is written here.
struct IconDirectory {
    IconLayout::DirHeader header;
    std::vector<IconLayout::DirEntry> entries;

    // The header and the entries it counts, as far as the bytes hold them;
    // nullopt when they are too short for the header.
    static std::optional<IconDirectory> read(const ByteView& bytes);
    // The header as it stands, its count included, then the entries.
    void write(QByteArray& out) const;
    // Bytes the header and entries take: where the first image can start.
    qint64 size() const;
};
