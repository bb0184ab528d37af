#include "fileio/ShellLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

const QString kShell = QStringLiteral("/shell32.dll");

// Wine's folders of Windows libraries, as its packages lay them out.
const char* const kWineFolders[] = {
    "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows",
    "/usr/lib/wine/x86_64-windows",
    "/usr/lib64/wine/x86_64-windows",
    "/usr/local/lib/wine/x86_64-windows",
    "/opt/wine-stable/lib/wine/x86_64-windows",
    "/opt/wine-staging/lib/wine/x86_64-windows",
    "/opt/wine-devel/lib/wine/x86_64-windows",
    "/opt/wine-stable/lib64/wine/x86_64-windows",
    "/opt/wine-staging/lib64/wine/x86_64-windows",
    "/opt/wine-devel/lib64/wine/x86_64-windows",
    "/usr/lib/i386-linux-gnu/wine/i386-windows",
    "/usr/lib/wine/i386-windows",
    "/usr/lib32/wine/i386-windows",
    "/usr/local/lib/wine/i386-windows",
    "/opt/wine-stable/lib/wine/i386-windows",
    "/opt/wine-staging/lib/wine/i386-windows",
    "/opt/wine-devel/lib/wine/i386-windows",
};

} // namespace

QStringList ShellLibrary::candidates(const QString& winePrefix, const QString& home,
                                     const QString& programFolder) {
    QStringList paths;
    for (const char* folder : kWineFolders)
        paths << QString::fromLatin1(folder) + kShell;
    const QString prefix = !winePrefix.isEmpty() ? winePrefix
                           : !home.isEmpty()     ? home + QStringLiteral("/.wine")
                                                 : QString();
    if (!prefix.isEmpty()) {
        paths << prefix + QStringLiteral("/drive_c/windows/system32") + kShell;
        paths << prefix + QStringLiteral("/drive_c/windows/syswow64") + kShell;
    }
    paths << programFolder + QStringLiteral("/brevik.icl");
    paths << programFolder + QStringLiteral("/../share/brevik/brevik.icl");
    return paths;
}

QString ShellLibrary::firstExisting(const QStringList& candidates) {
    for (const QString& path : candidates)
        if (QFileInfo(QDir::cleanPath(path)).isFile())
            return QDir::cleanPath(path);
    return {};
}

QString ShellLibrary::locate() {
    return firstExisting(candidates(qEnvironmentVariable("WINEPREFIX"), QDir::homePath(),
                                    QCoreApplication::applicationDirPath()));
}
