#include "cli/LibraryVerb.h"

#include "fileio/ModFileIO.h"
#include "fileio/NeLibraryWriter.h"

#include <QFileInfo>

int LibraryVerb::run(const CommandLine& line, CliReport& report) {
    if (line.files.size() < 2)
        return report.usage(QStringLiteral("library needs an output file and at least one icon"));
    const QString& out = line.files.front();
    std::vector<QByteArray> icons;
    for (const QString& path : line.files.mid(1)) {
        ReadFault fault = ReadFault::None;
        auto bytes = ModFileIO::readFile(path, &fault);
        if (!bytes) {
            report.failToRead(path, fault);
            continue;
        }
        // A library that listed an image it lacks would fail in every reader.
        if (!NeLibraryWriter::accepts(*bytes)) {
            report.fail(path + QStringLiteral(" is not a valid icon file."));
            continue;
        }
        icons.push_back(std::move(*bytes));
    }
    if (icons.empty())
        return report.status();
    // Windows knows a library by its module name: the file's, in capitals.
    const QByteArray module = QFileInfo(out).completeBaseName().toUpper().toLatin1();
    const auto library = NeLibraryWriter::write(icons, module);
    if (!library || !ModFileIO::saveFile(out, *library))
        report.fail(QStringLiteral("Unable to create the file ") + out);
    return report.status();
}
