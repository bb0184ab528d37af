#pragma once

#include "fileio/IcoFile.h"

#include <QByteArray>
#include <QString>
#include <optional>

// Where icon files meet the disk: each is read once, and written whole or not
// at all. Nothing here shows a message: the caller shows the texts below,
// titled errorTitle().
class ModFileIO {
  public:
    // Larger files are refused unread (see IconLayout::kMaxFileBytes).
    static qint64 maxFileBytes();

    // The icon file read once, for Open to test, count, list and load. A
    // file that cannot be read gives an empty container holding the fault;
    // one too large gives its head, so the header test and the count still
    // pass a valid start and the load names the failure.
    static IcoFile readIconFile(const QString& path);

    // Each write builds the whole file in memory and replaces the destination
    // only when every byte is on disk, so a failed write keeps the old file.
    static bool writeIcon(const Plane& mask, const Plane& image, int colourCount,
                          const QString& path);
    static bool writeCursor(const Plane& mask, const Plane& image, int colourCount, int hotSpotX,
                            int hotSpotY, const QString& path);
    static bool writeBitmap(const Plane& picture, int colourCount, const QString& path);
    // An empty destination is a save in place, which always fails.
    static bool rewriteMultiIcon(const Plane& mask, const Plane& image, int colourCount,
                                 const IconDescription& chosen, const QString& sourcePath,
                                 const QString& destinationPath);

    // The file's bytes, or nullopt when it cannot be read or is too large.
    static std::optional<QByteArray> readFile(const QString& path, ReadFault* fault = nullptr);
    // The same for a file icons are extracted from, with the larger bound of
    // executables and libraries (IconLayout::kMaxLibraryBytes).
    static std::optional<QByteArray> readLibraryFile(const QString& path,
                                                     ReadFault* fault = nullptr);
    static bool saveFile(const QString& path, const QByteArray& bytes);
    // How many reads of a file were asked for so far in this process, so
    // that tests can count the reads a command takes.
    static int readCount();

    static QString errorTitle();
    // "... incompatible with Sollent.\r\n\r\n32 x 16 pixels."
    static QString dimensionMessage(int width, int height);
    // The message for a failed load of either kind (Ok gives an empty text).
    static QString loadMessage(const IconLoadResult& result, bool multi);
};
