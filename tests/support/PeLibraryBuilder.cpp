#include "PeLibraryBuilder.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

bool run(const QString& program, const QStringList& arguments, QString& error) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        error = program + " failed (install binutils-mingw-w64): " + process.errorString() + " " +
                QString::fromLocal8Bit(process.readAllStandardError());
        return false;
    }
    return true;
}

bool write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

QByteArray PeLibraryBuilder::build(QString& error) const {
    QTemporaryDir dir;
    QByteArray script;
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const QString ico = dir.filePath(QString("icon%1.ico").arg(i));
        if (!write(ico, icons[i].second)) {
            error = "cannot write " + ico;
            return {};
        }
        script += icons[i].first.toUtf8() + " ICON \"" + ico.toUtf8() + "\"\n";
    }
    const QString rc = dir.filePath("icons.rc"), object = dir.filePath("icons.o"),
                  dll = dir.filePath("icons.dll");
    if (!write(rc, script)) {
        error = "cannot write " + rc;
        return {};
    }
    // The script has no directives, so it needs no C preprocessor (and no
    // cross compiler): cat passes it through.
    const QString prefix = target + "-w64-mingw32-";
    if (!run(prefix + "windres", {"--preprocessor=cat", "-O", "coff", "-i", rc, "-o", object},
             error) ||
        !run(prefix + "ld", {"--dll", "-e", "0", "-o", dll, object}, error))
        return {};
    QFile file(dll);
    if (!file.open(QIODevice::ReadOnly)) {
        error = "no DLL made";
        return {};
    }
    return file.readAll();
}
