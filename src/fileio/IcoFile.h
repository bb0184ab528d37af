#pragma once

#include "fileio/IconDirectory.h"
#include "fileio/IconSource.h"

#include <QByteArray>
#include <optional>
#include <vector>

// An .ico or .cur file parsed once from its bytes: its directory as far as
// the bytes hold it and its images, decoded on demand; also the writer of
// such files. Every count, size and offset in the bytes is untrusted: a bad
// file gives a typed failure, never a read outside the bytes or an
// allocation larger than they justify.
class IcoFile : public IconSource {
  public:
    // readFault says why the bytes are not the whole file (nothing could be
    // read, or only the head of a file too large to read whole): the header
    // test and the count still read what there is; every image fails with it.
    explicit IcoFile(QByteArray bytes, ReadFault readFault = ReadFault::None);

    const QByteArray& bytes() const { return bytes_; }
    // nullopt when the bytes are too short for the header.
    const std::optional<IconDirectory>& directory() const { return directory_; }

    // The header test: only the directory header and the first entry count.
    bool isIconFile() const;
    // idCount, or 0 when it is below 1 or cannot be read.
    int count() const override;
    // One line per directory entry; nullopt when any entry cannot be read.
    std::optional<std::vector<IconListLine>> listing() const;
    // Entry index decoded at whatever depth it has (1, 4, 8, 24 or 32 bits),
    // standing in for the system's icon loader.
    IconLoadResult image(int index) const override;
    // The chosen entry decoded with the depth and size from its listing line.
    IconLoadResult chosenImage(const IconDescription& chosen) const;

    // One-image files of the planes. The colour count (from
    // ModPalette::countColours) picks the depth: 2 -> 1 bit, 16 -> 4, 256 ->
    // 8, anything else 24. Empty when the planes cannot be written (empty, of
    // different sizes, or wider than a directory entry can say).
    static QByteArray iconBytes(const Plane& mask, const Plane& image, int colourCount);
    static QByteArray cursorBytes(const Plane& mask, const Plane& image, int colourCount,
                                  int hotSpotX, int hotSpotY);
    // This file with the chosen image replaced by the planes and moved to the
    // front; nullopt when its directory or image data cannot be read.
    std::optional<QByteArray> withImageReplaced(const Plane& mask, const Plane& image,
                                                int colourCount,
                                                const IconDescription& chosen) const;

  private:
    // True when the bytes hold an entry for every image the header counts.
    bool holdsEveryEntry() const;

    QByteArray bytes_;
    ReadFault readFault_;
    std::optional<IconDirectory> directory_;
};
