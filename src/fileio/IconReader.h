#pragma once

#include "fileio/IconFileTypes.h"

#include <QByteArray>
#include <optional>
#include <vector>

// Reads icon files from their bytes. Every count, size and offset in the
// bytes is untrusted: a bad file gives a typed failure, never a read outside
// the bytes or an allocation larger than they justify.
class IconReader {
  public:
    // The header test: only the directory header and the first entry count.
    static bool isIconFile(const QByteArray& bytes);
    // idCount, or 0 when it is below 1 or cannot be read.
    static int iconCount(const QByteArray& bytes);
    // One line per directory entry; nullopt when any entry cannot be read.
    static std::optional<std::vector<IconListLine>> listIcons(const QByteArray& bytes);
    // Entry 0 decoded at whatever depth it has (1, 4, 8, 24 or 32 bits).
    static IconLoadResult loadSingleIcon(const QByteArray& bytes);
    // The chosen entry decoded with the depth and size from the listing.
    static IconLoadResult loadMultiIcon(const QByteArray& bytes, const IconDescription& chosen);

    // What choosing a listing line gives: the leading number of the text as
    // width, the number after the first "x" as height.
    static IconDescription describeListLine(int index, const IconListLine& line);
};
