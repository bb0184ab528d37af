#include "cli/ExtractVerb.h"

#include "cli/ParallelSaver.h"
#include "fileio/IcoFile.h"
#include "fileio/IconSourceOpener.h"
#include "fileio/ModPalette.h"

#include <QDir>
#include <QFileInfo>

namespace {

// A resource name may hold characters no file name can.
QString fileNamePart(QString name) {
    for (QChar& c : name)
        if (c == QLatin1Char('/') || c == QLatin1Char('\\') || c.unicode() < 0x20)
            c = QLatin1Char('_');
    return name;
}

} // namespace

int ExtractVerb::run(const CommandLine& line, CliReport& report) {
    const auto size = line.value("--size");
    if (size && *size != "32")
        return report.usage(QStringLiteral("extract --size takes only 32, the size Extract gives"));
    const QDir folder(line.value("-o").value_or(QStringLiteral(".")));
    if (!folder.exists() && !QDir().mkpath(folder.path())) {
        report.fail(QStringLiteral("Unable to create the folder ") + folder.path());
        return report.status();
    }

    for (const QString& path : line.files) {
        const auto opened = IconSourceOpener::openFile(path);
        if (!opened.source) {
            report.failToRead(path, opened.fault);
            continue;
        }
        const QString base = QFileInfo(path).completeBaseName() + QLatin1Char('_');
        std::vector<std::pair<QString, QByteArray>> outputs;
        for (int icon = 0; icon < opened.source->count(); ++icon) {
            const QString name = opened.source->name(icon);
            const QString stem = folder.filePath(base + fileNamePart(name.isEmpty() ? "1" : name));
            QByteArray bytes;
            QString suffix = QStringLiteral(".ico");
            if (size) {
                const IconLoadResult shown = opened.source->image(icon);
                if (shown.ok())
                    bytes = IcoFile::iconBytes(shown.mask, shown.image,
                                               ModPalette::countColours(shown.image, true));
            } else if (const auto stored = opened.source->storedFile(icon)) {
                bytes = *stored;
                if (ByteView(bytes).contains(2, 2) && ByteView(bytes).u16(2) == 2)
                    suffix = QStringLiteral(".cur");
            }
            if (bytes.isEmpty())
                report.fail(QStringLiteral("An error occurred while loading ") + path + " (" +
                            (name.isEmpty() ? QStringLiteral("1") : name) + ")");
            else
                outputs.emplace_back(stem + suffix, std::move(bytes));
        }
        const std::vector<bool> saved = ParallelSaver::saveAll(outputs);
        for (std::size_t i = 0; i < outputs.size(); ++i)
            if (!saved[i])
                report.fail(QStringLiteral("Unable to save the file ") + outputs[i].first);
    }
    return report.status();
}
