#include "fileio/ModFileIO.h"

#include "fileio/BmpFile.h"
#include "fileio/IconLayout.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

int reads = 0;

// Enough for the directory header and the first entry.
constexpr qint64 kHeadBytes = IconLayout::kHeaderBytes + IconLayout::kEntryBytes;

// The whole of a regular file. Devices, pipes and directories are refused
// before they are opened, so a read can neither block nor run on. A file
// larger than limit is refused too, though its head is read into *head when
// asked for.
std::optional<QByteArray> readWhole(const QString& path, qint64 limit, ReadFault* fault,
                                    QByteArray* head) {
    const auto fail = [fault](ReadFault f) -> std::optional<QByteArray> {
        if (fault)
            *fault = f;
        return std::nullopt;
    };
    ++reads;
    // One look at the file answers both what it is and how large.
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile())
        return fail(ReadFault::Unreadable);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(ReadFault::Unreadable);
    if (info.size() > limit) {
        if (head)
            *head = file.read(kHeadBytes);
        return fail(ReadFault::TooLarge);
    }
    // Read at the size the file gives: asking for the limit would make a
    // buffer of the limit for every file. A file that tells no size (some
    // system files) is read up to the limit.
    QByteArray bytes = file.read(info.size() > 0 ? info.size() : limit);
    if (file.error() != QFileDevice::NoError)
        return fail(ReadFault::Unreadable);
    if (fault)
        *fault = ReadFault::None;
    return bytes;
}

// Asks the system to put the written bytes on the device, where a delayed
// allocation can still fail for want of space.
bool syncToDisk(QFileDevice& file) {
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0;
#else
    Q_UNUSED(file);
    return true;
#endif
}

} // namespace

qint64 ModFileIO::maxFileBytes() {
    return IconLayout::kMaxFileBytes;
}

std::optional<QByteArray> ModFileIO::readFile(const QString& path, ReadFault* fault) {
    return readWhole(path, IconLayout::kMaxFileBytes, fault, nullptr);
}

std::optional<QByteArray> ModFileIO::readLibraryFile(const QString& path, ReadFault* fault) {
    return readWhole(path, IconLayout::kMaxLibraryBytes, fault, nullptr);
}

IcoFile ModFileIO::readIconFile(const QString& path) {
    ReadFault fault = ReadFault::None;
    QByteArray head;
    auto bytes = readWhole(path, IconLayout::kMaxFileBytes, &fault, &head);
    return bytes ? IcoFile(std::move(*bytes)) : IcoFile(head, fault);
}

int ModFileIO::readCount() {
    return reads;
}

bool ModFileIO::saveFile(const QString& path, const QByteArray& bytes) {
    if (path.isEmpty() || bytes.isEmpty())
        return false;
    // Written to a temporary file beside the destination, which replaces it
    // only at commit. A folder that takes no new file (read-only, say) is
    // therefore refused even when the file itself is writable: writing in
    // place instead could leave a half-written icon behind.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // QSaveFile buffers a small write, and commit() renames the temporary
    // file over the destination even when its own flush fails (a full disk,
    // a file size limit). So every byte is pushed out and synced here first,
    // where a failure can still cancel.
    const bool written = file.write(bytes) == bytes.size() && file.flush() &&
                         file.error() == QFileDevice::NoError && syncToDisk(file);
    if (!written) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

bool ModFileIO::writeIcon(const Plane& mask, const Plane& image, int colourCount,
                          const QString& path) {
    return saveFile(path, IcoFile::iconBytes(mask, image, colourCount));
}

bool ModFileIO::writeCursor(const Plane& mask, const Plane& image, int colourCount, int hotSpotX,
                            int hotSpotY, const QString& path) {
    return saveFile(path, IcoFile::cursorBytes(mask, image, colourCount, hotSpotX, hotSpotY));
}

bool ModFileIO::writeBitmap(const Plane& picture, int colourCount, const QString& path) {
    return saveFile(path, BmpFile::bytes(picture, colourCount));
}

bool ModFileIO::rewriteMultiIcon(const Plane& mask, const Plane& image, int colourCount,
                                 const IconDescription& chosen, const QString& sourcePath,
                                 const QString& destinationPath) {
    // A save in place is refused on purpose: the file being rewritten is the
    // one its other images come from, and the user is better served by Save
    // As to another path, which works, than by a rewrite over the only copy.
    if (destinationPath.isEmpty())
        return false;
    // The source is read whole before the destination is touched, so saving
    // over the source itself also works.
    const auto source = readFile(sourcePath);
    if (!source)
        return false;
    const auto bytes = IcoFile(*source).withImageReplaced(mask, image, colourCount, chosen);
    return bytes && saveFile(destinationPath, *bytes);
}

QString ModFileIO::errorTitle() {
    return QStringLiteral("Sollent - Error");
}

QString ModFileIO::dimensionMessage(int width, int height) {
    return QStringLiteral("Icon has dimensions which are incompatible with Sollent.\r\n\r\n") +
           QString::number(width) + QStringLiteral(" x ") + QString::number(height) +
           QStringLiteral(" pixels.");
}

QString ModFileIO::loadMessage(const IconLoadResult& result, bool multi) {
    switch (result.status) {
    case LoadStatus::Ok:
        return {};
    case LoadStatus::BadDimensions:
        return dimensionMessage(result.width, result.height);
    case LoadStatus::Failed:
        break;
    }
    return multi ? QStringLiteral("An unexpected error occurred while loading the icon resource.")
                 : QStringLiteral("An unexpected error occurred while loading the icon.");
}
