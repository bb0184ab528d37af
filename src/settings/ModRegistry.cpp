#include "settings/ModRegistry.h"

#include "settings/ModRecent.h"

#include <QDir>
#include <QSettings>

namespace {

const QString kRecentFiles = QStringLiteral("Recent Files");
const QString kRecentFolder = QStringLiteral("Recent Folder");
const QString kFolder = QStringLiteral("Folder");
// A stored path must fit a 260-character path buffer, terminator included,
// as every reader of these values expects; anything longer counts as damaged.
constexpr int kMaxStoredLength = 259;

QString valueName(int entry) {
    return QString::number(entry) + QLatin1Char('.');
}

// A value that is a non-empty text of sane length, else empty.
QString storedText(const QSettings& settings, const QString& name) {
    const QVariant value = settings.value(name);
    if (!value.isValid() || !value.canConvert<QString>())
        return {};
    const QString text = value.toString();
    return text.size() <= kMaxStoredLength ? text : QString();
}

} // namespace

std::unique_ptr<QSettings> ModRegistry::open() const {
    if (storeFile_.isEmpty())
        return std::make_unique<QSettings>(QStringLiteral("Kestrane"), QStringLiteral("Sollent"));
    return std::make_unique<QSettings>(storeFile_, QSettings::IniFormat);
}

void ModRegistry::LoadRecentFiles(ModRecent& recent) const {
    auto settings = open();
    if (!settings->childGroups().contains(kRecentFiles))
        return;
    settings->beginGroup(kRecentFiles);
    QStringList paths;
    for (int i = 1; i <= ModRecent::kEntries; ++i) {
        const QString path = storedText(*settings, valueName(i));
        if (!path.isEmpty())
            paths << path;
        // Read or not, the value is handed over: a run that ends without its
        // shutdown loses the list rather than keeping a stale one.
        settings->remove(valueName(i));
    }
    settings->endGroup();
    recent.setPaths(paths);
}

void ModRegistry::SaveRecentFiles(const ModRecent& recent) const {
    auto settings = open();
    settings->beginGroup(kRecentFiles);
    for (int i = 1; i <= ModRecent::kEntries; ++i) {
        const QString& tag = recent.MnuRecent[i].tag;
        if (!tag.isEmpty())
            settings->setValue(valueName(i), tag);
    }
    settings->endGroup();
}

QString ModRegistry::LoadRecentFolder() const {
    auto settings = open();
    settings->beginGroup(kRecentFolder);
    QString folder = storedText(*settings, kFolder);
    settings->remove(kFolder);
    settings->endGroup();
    // A folder that has gone since is simply not used.
    if (folder.isEmpty() || !QDir(folder).exists())
        return {};
    return folder;
}

void ModRegistry::SaveRecentFolder(const QString& folder) const {
    auto settings = open();
    settings->beginGroup(kRecentFolder);
    settings->setValue(kFolder, folder);
    settings->endGroup();
}
