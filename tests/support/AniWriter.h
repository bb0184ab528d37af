#pragma once

#include <QByteArray>
#include <optional>
#include <vector>

// Builds animated cursors (RIFF "ACON") from icon files, so that the reader
// is tested on files this program did not write.
struct AniWriter {
    std::vector<QByteArray> frames;
    quint32 steps = 0;
    std::optional<std::vector<quint32>> sequence;
    bool withHeader = true;

    QByteArray bytes() const;
};
