#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

// Builds a real resource-only DLL with the MinGW binutils (windres, then ld):
// one ICON line per (name, .ico bytes). target is "x86_64" (PE32+) or "i686"
// (PE32). The tools are required: a missing one is an error, not a skip.
struct PeLibraryBuilder {
    QString target;
    std::vector<std::pair<QString, QByteArray>> icons;

    // The DLL's bytes, or empty with error saying which step failed.
    QByteArray build(QString& error) const;
};
