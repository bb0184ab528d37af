#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

// Saves many files through ModFileIO::saveFile, each whole or not at all and
// synced, from a few threads at once: a sync waits for the file system's
// journal, and syncs that wait together share one commit instead of
// queueing for one each. That is most of the time of extracting a
// library's hundreds of icons.
class ParallelSaver {
  public:
    // True for each file saved, in the order given.
    static std::vector<bool> saveAll(const std::vector<std::pair<QString, QByteArray>>& files);
};
