#pragma once

#include <QByteArray>
#include <vector>

// Builds a 16-bit Windows library (NE) whose resource table holds one icon
// group per .ico file given, in that order, and their images numbered from
// 1, every offset and length in units of 2^shift bytes.
struct NeWriter {
    std::vector<QByteArray> icons;
    int shift = 4;

    QByteArray bytes() const;
    // Where the resource table starts in bytes().
    static constexpr int kTableOffset = 0x80;
};
