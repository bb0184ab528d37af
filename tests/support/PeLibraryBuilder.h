#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

// Builds a real resource-only DLL with the MinGW binutils (windres, then ld):
// one ICON line per (name, .ico bytes). target is "x86_64" (PE32+) or "i686"
// (PE32). The tools are required: a missing one is an error, not a skip.
struct PeLibraryBuilder {
    QString target;
    std::vector<std::pair<QString, QByteArray>> icons;

    // The DLL's bytes, or empty with error saying which step failed.
    QByteArray build(QString& error) const {
        QTemporaryDir dir;
        const QString rc = dir.filePath("icons.rc"), object = dir.filePath("icons.o"),
                      dll = dir.filePath("icons.dll");
        QByteArray script;
        for (std::size_t i = 0; i < icons.size(); ++i) {
            const QString ico = dir.filePath(QString("icon%1.ico").arg(i));
            if (!write(ico, icons[i].second, error))
                return {};
            script += icons[i].first.toUtf8() + " ICON \"" + ico.toUtf8() + "\"\n";
        }
        // The script has no directives, so it needs no C preprocessor (and no
        // cross compiler): cat passes it through.
        const QString prefix = target + "-w64-mingw32-";
        if (!write(rc, script, error) ||
            !run(prefix + "windres", {"--preprocessor=cat", "-O", "coff", "-i", rc, "-o", object},
                 error) ||
            !run(prefix + "ld", {"--dll", "-e", "0", "-o", dll, object}, error))
            return {};
        QFile file(dll);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The DLL's bytes; a failure fails the test and says which step failed.
    QByteArray build() const {
        QString error;
        const QByteArray dll = build(error);
        EXPECT_FALSE(dll.isEmpty()) << error.toStdString();
        return dll;
    }

  private:
    static bool run(const QString& program, const QStringList& arguments, QString& error) {
        QProcess process;
        process.start(program, arguments);
        if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
            process.exitCode() == 0)
            return true;
        error = program + " failed (install binutils-mingw-w64): " + process.errorString() + " " +
                QString::fromLocal8Bit(process.readAllStandardError());
        return false;
    }

    static bool write(const QString& path, const QByteArray& bytes, QString& error) {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
            return true;
        error = "cannot write " + path;
        return false;
    }
};
