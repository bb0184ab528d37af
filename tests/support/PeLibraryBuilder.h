#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <stdexcept>
#include <utility>
#include <vector>

// Builds a real resource-only DLL with the MinGW binutils (windres, then ld):
// one ICON line per (name, .ico bytes). target is "x86_64" (PE32+) or "i686"
// (PE32). The tools are required: a missing one is an error, not a skip.
struct PeLibraryBuilder {
    QString target;
    std::vector<std::pair<QString, QByteArray>> icons;

    // The DLL's bytes. A failure throws, which fails a test or stops a
    // benchmark with what failed.
    QByteArray build() const {
        QTemporaryDir dir;
        QByteArray script;
        for (std::size_t i = 0; i < icons.size(); ++i) {
            QFile ico(dir.filePath(QString("icon%1.ico").arg(i)));
            if (ico.open(QIODevice::WriteOnly))
                ico.write(icons[i].second);
            script += icons[i].first.toUtf8() + " ICON \"" + ico.fileName().toUtf8() + "\"\n";
        }
        QFile rc(dir.filePath("icons.rc")), dll(dir.filePath("icons.dll"));
        if (rc.open(QIODevice::WriteOnly))
            rc.write(script);
        rc.close();
        // The script has no directives, so it needs no C preprocessor (and no
        // cross compiler): cat passes it through.
        QProcess tools;
        tools.setWorkingDirectory(dir.path());
        tools.start("sh", {"-ec", QString("%1windres --preprocessor=cat -O coff -i icons.rc -o "
                                          "icons.o; %1ld --dll -e 0 -o icons.dll icons.o")
                                      .arg(target + "-w64-mingw32-")});
        const bool built = tools.waitForFinished(60000) && tools.exitCode() == 0;
        if (!built || !dll.open(QIODevice::ReadOnly))
            throw std::runtime_error("windres or ld failed (install binutils-mingw-w64): " +
                                     tools.readAllStandardError().toStdString());
        return dll.readAll();
    }
};
