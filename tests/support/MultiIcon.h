#pragma once

#include "fileio/ByteWriter.h"

#include <QByteArray>
#include <vector>

// One .ico file holding the images of several one-image files (as the
// program writes them), in the order given: a group with sizes and depths
// to choose from.
inline QByteArray joinIcons(const std::vector<QByteArray>& singles) {
    QByteArray entries, data;
    const int first = 6 + 16 * static_cast<int>(singles.size());
    for (const QByteArray& single : singles) {
        QByteArray entry = single.mid(6, 12);
        ByteWriter(entry).u32(static_cast<quint32>(first + data.size()));
        entries += entry;
        data += single.mid(22);
    }
    QByteArray out;
    ByteWriter w(out);
    w.u16(0);
    w.u16(1);
    w.u16(static_cast<quint32>(singles.size()));
    return out + entries + data;
}
