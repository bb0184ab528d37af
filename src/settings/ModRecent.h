#pragma once

#include <QString>
#include <QStringList>

#include <array>

// The recent-files list as the File menu shows it: MnuRecent(0) is the
// separator, MnuRecent(1..4) the entries, most recent first. An entry is in
// use when its tag (the full path) is not empty.
class ModRecent {
  public:
    static constexpr int kEntries = 4;

    struct Item {
        QString tag;
        QString caption; // "&1 star.ico"
        bool visible = false;
    };

    // Puts path at the top. An entry naming the same file in other letter
    // case moves up instead of being repeated.
    void AddRecent(const QString& path);
    // Drops the entry of path; the rest close up and are renumbered.
    void RemoveRecent(const QString& path);
    // The file name part of a path: the text after the last separator, or
    // the whole text when there is none.
    static QString FileNameOf(const QString& path);

    // The paths in use, top first.
    QStringList paths() const;
    // Shows the list as it stood: entries in order, the separator over them.
    // Used when the stored list is loaded.
    void setPaths(const QStringList& paths);

    std::array<Item, kEntries + 1> MnuRecent;

  private:
    void setEntry(int index, const QString& path);
};
