#pragma once

#include "fileio/IcoBuilder.h"

// One .ico file holding the images of several one-image files (as the
// program writes them), in the order given: a group with sizes and depths
// to choose from.
inline QByteArray joinIcons(const std::vector<QByteArray>& singles) {
    IcoBuilder head;
    head.header(1, static_cast<int>(singles.size()));
    QByteArray data;
    for (const QByteArray& single : singles) {
        head.bytes += single.mid(6, 12); // the entry up to its offset
        head.u32(6 + 16 * static_cast<qint64>(singles.size()) + data.size());
        data += single.mid(22);
    }
    return head.bytes + data;
}
