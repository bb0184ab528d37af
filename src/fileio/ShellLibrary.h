#pragma once

#include <QString>
#include <QStringList>

// The file the extraction browser opens on. Windows keeps Shell32.dll in its
// system folder; here the nearest thing is Wine's build of it, which carries
// the same kind of icons. Where Wine is not installed, the browser opens on
// the program's own icon library, brevik.icl, so it never starts empty-handed.
class ShellLibrary {
  public:
    // Every place to look, in order: Wine's installed libraries (64-bit
    // before 32-bit, the distributions' folders before WineHQ's under
    // /opt), then the user's Wine prefix (winePrefix, or home/.wine when it
    // is empty), then brevik.icl beside the program (the build tree) and
    // where it is installed (<prefix>/share/brevik beside <prefix>/bin).
    static QStringList candidates(const QString& winePrefix, const QString& home,
                                  const QString& programFolder);
    // The first candidate that is a file; empty when none is.
    static QString firstExisting(const QStringList& candidates);
    // Both, for this machine: its WINEPREFIX and HOME and the running
    // program's folder.
    static QString locate();
};
