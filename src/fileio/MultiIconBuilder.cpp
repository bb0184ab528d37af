#include "fileio/MultiIconBuilder.h"

#include "fileio/ModFileIO.h"

#include <QFile>
#include <QFileInfo>

using Outcome = MultiIconResource::AddOutcome;

QString MultiIconBuilder::limitMessage() {
    return QStringLiteral("A maximum of ten icons has been reached.\r\n\r\n"
                          "If you wish to remove an icon, right click on it to delete.");
}

int MultiIconBuilder::open() {
    // The limit is told before the file dialog, so no file is chosen in vain.
    if (resource_.filledCount() >= MultiIconResource::kMaxFilled) {
        dialogs_.showMessage(QStringLiteral("Sollent"), limitMessage(), MessageIcon::Information);
        return -1;
    }
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::Open);
    if (!file)
        return -1;
    // A file that cannot be read is not an icon file.
    const QByteArray bytes = ModFileIO::readFile(file->path).value_or(QByteArray());
    const MultiIconResource::AddResult added = resource_.add(bytes);
    switch (added.outcome) {
    case Outcome::Added:
        icons_[added.slot] = IcoFile(bytes).image(0);
        return added.slot;
    case Outcome::LimitReached:
        dialogs_.showMessage(QStringLiteral("Sollent"), limitMessage(), MessageIcon::Information);
        break;
    case Outcome::NotAnIcon:
        showError(file->title + QStringLiteral(" is not a valid icon file."));
        break;
    case Outcome::NoImages:
        showError(QStringLiteral("Unable to read data from ") + file->title);
        break;
    case Outcome::MultiImage:
        showError(file->title + QStringLiteral(" is a multi icon resource.\r\n\r\n"
                                               "Only single icons can be loaded."));
        break;
    case Outcome::CannotLoad:
        showError(QStringLiteral("Unable to load icon."));
        break;
    }
    return -1;
}

void MultiIconBuilder::remove(int slot) {
    resource_.remove(slot);
    if (slot >= 0 && slot < MultiIconResource::kSlotCount)
        icons_[slot] = IconLoadResult();
}

bool MultiIconBuilder::create() {
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::SaveAs);
    if (!file)
        return false;
    const QByteArray bytes = resource_.toBytes();
    // Written in place into a plain file, unlike the editor's saves: a
    // failed write leaves the part written so far where the old file was.
    // That is intended; the message tells the user the file is not whole.
    QFile::remove(file->path);
    QFile out(file->path);
    const bool written =
        out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.flush();
    out.close();
    if (!written)
        showError(QStringLiteral("Unable to create the file ") + file->path);
    return written;
}

std::optional<FileChoice> MultiIconBuilder::chooseFile(FileDialogMode mode) {
    std::optional<FileChoice> choice = dialogs_.chooseFile(mode, recentFolder_);
    if (choice)
        recentFolder_ = QFileInfo(choice->path).absolutePath();
    return choice;
}

void MultiIconBuilder::showError(const QString& text) {
    dialogs_.showMessage(ModFileIO::errorTitle(), text, MessageIcon::Exclamation);
}
