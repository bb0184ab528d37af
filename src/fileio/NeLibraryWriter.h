#pragma once

#include <QByteArray>
#include <optional>
#include <vector>

// Writes icon libraries (.icl): 16-bit Windows libraries (NE) with no code,
// whose resource table holds one icon group per icon file given, in that
// order and numbered from 1, and their images as icon resources numbered
// from 1. Offsets and lengths in the table count units of 2^shift bytes.
class NeLibraryWriter {
  public:
    // Where the resource table starts in the bytes written.
    static constexpr qint64 kTableOffset = 0x80;
    static constexpr int kSmallestShift = 4;

    // True when the bytes are a type-1 icon file holding every image its
    // directory names: what a library can take.
    static bool accepts(const QByteArray& icon);

    // nullopt when an input is not a type-1 icon file holding every image
    // its directory names, or when the library outgrows the table's 16-bit
    // fields at the shift. A shift of -1 picks the smallest one from 4 up
    // that fits. moduleName is what Windows calls the library.
    static std::optional<QByteArray> write(const std::vector<QByteArray>& icons,
                                           const QByteArray& moduleName, int shift = -1);
};
