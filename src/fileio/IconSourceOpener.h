#pragma once

#include "fileio/IconSource.h"

#include <QByteArray>
#include <QString>
#include <memory>

// Opens any file the extraction browser can show, told apart by its content
// rather than its name: PE and NE executables and libraries, animated
// cursors, and icon and cursor files.
class IconSourceOpener {
  public:
    struct Opened {
        // nullptr when the file cannot be read or is none of those formats.
        std::unique_ptr<IconSource> source;
        ReadFault fault = ReadFault::None;
    };

    static Opened open(QByteArray bytes);
    // The file read once through ModFileIO, then opened as above.
    static Opened openFile(const QString& path);
};
