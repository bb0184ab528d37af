#pragma once

#include "fileio/ByteView.h"

#include <optional>
#include <vector>

// One image of an icon group: its entry's size and depth, and where its
// stored data lies in the file (offset -1 when the file does not hold it).
struct GroupMember {
    int width = 0;
    int height = 0;
    int bitCount = 0;
    qint64 offset = -1;
    qint64 length = 0;
    // The resource ID (group resources) or data offset (.ico files) the
    // entry names, for the reader to resolve.
    quint32 reference = 0;
};

// The directory of one icon: an .ico or .cur file's (16-byte entries that
// end in the data offset) or a group resource's (14-byte entries that end in
// the image's resource ID).
class IconGroup {
  public:
    static constexpr int kFileEntryBytes = 16;
    static constexpr int kResourceEntryBytes = 14;

    // The entries of the directory at offset, as many as its header counts
    // and the bytes hold; nullopt when the header is not an icon or cursor
    // directory's or the bytes cannot hold a single entry.
    static std::optional<std::vector<GroupMember>> read(const ByteView& bytes, qint64 offset,
                                                        int entryBytes);

    // The member the browser shows: the 32 x 32 one at the highest depth;
    // without one, the nearest size (the larger of two equally near), again
    // at its highest depth. -1 for an empty group.
    static int pick(const std::vector<GroupMember>& members);

    // The directory at offset written as an .ico or .cur file's around the
    // members' images: the header with the members' count, each entry's
    // first 8 bytes as stored, then its image's length and offset in the new
    // file, then the images copied byte for byte. The members' offset and
    // length say where each image lies; nullopt when one lies outside bytes
    // or the file would be larger than any icon file (kMaxFileBytes).
    static std::optional<QByteArray> toFile(const QByteArray& bytes, qint64 offset, int entryBytes,
                                            const std::vector<GroupMember>& members);
};
