#pragma once

#include <QString>

#include <array>

// The recent-files list as the File menu shows it: MnuRecent(0) is the
// separator, MnuRecent(1..4) the entries, most recent first. An entry is in
// use when its tag (the full path) is not empty.
class ModRecent {
public:
    struct Item {
        QString tag;
        QString caption; // "&1 star.ico"
        bool visible = false;
    };

    // Puts path at the top (case-insensitive match moves it up).
    void AddRecent(const QString& path);
    void RemoveRecent(const QString& path);
    static QString FileNameOf(const QString& path);

    std::array<Item, 5> MnuRecent;
};
