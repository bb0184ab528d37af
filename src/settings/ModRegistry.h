#pragma once

#include <QString>

#include <memory>

class ModRecent;
class QSettings;

// The per-user store of the recent files and the recent folder, kept under
// "Kestrane"/"Sollent": group "Recent Files" with values "1." to "4.", group
// "Recent Folder" with value "Folder". It is a hand-over store: loading
// deletes what it read, shutdown writes the values afresh.
class ModRegistry {
  public:
    // The user's own store. A test points it at a file of its own instead.
    ModRegistry() = default;
    explicit ModRegistry(QString storeFile) : storeFile_(std::move(storeFile)) {}

    void LoadRecentFiles(ModRecent& recent) const;
    void SaveRecentFiles(const ModRecent& recent) const;
    // The stored folder when it still exists, else empty.
    QString LoadRecentFolder() const;
    void SaveRecentFolder(const QString& folder) const;

  private:
    std::unique_ptr<QSettings> open() const;

    QString storeFile_;
};
