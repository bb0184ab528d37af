#include "fileio/MultiIconBuilder.h"

#include "fileio/IcoFile.h"
#include "fileio/ModFileIO.h"

#include <QFile>
#include <QFileInfo>

using Outcome = MultiIconResource::AddOutcome;

QString MultiIconBuilder::addMessage(Outcome outcome, const QString& fileTitle) {
    switch (outcome) {
    case Outcome::Added:
        break;
    case Outcome::LimitReached:
        return QStringLiteral("A maximum of ten icons has been reached.\r\n\r\n"
                              "If you wish to remove an icon, right click on it to delete.");
    case Outcome::NotAnIcon:
        return fileTitle + QStringLiteral(" is not a valid icon file.");
    case Outcome::NoImages:
        return QStringLiteral("Unable to read data from ") + fileTitle;
    case Outcome::MultiImage:
        return fileTitle + QStringLiteral(" is a multi icon resource.\r\n\r\n"
                                          "Only single icons can be loaded.");
    case Outcome::CannotLoad:
        return QStringLiteral("Unable to load icon.");
    }
    return {};
}

int MultiIconBuilder::open() {
    // The limit is told before the file dialog, so no file is chosen in vain.
    if (resource_.filledCount() >= MultiIconResource::kMaxFilled) {
        showMessage(Outcome::LimitReached, {});
        return -1;
    }
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::Open);
    if (!file)
        return -1;
    // A file that cannot be read is not an icon file.
    const QByteArray bytes = ModFileIO::readFile(file->path).value_or(QByteArray());
    const MultiIconResource::AddResult added = resource_.add(bytes);
    if (added.outcome != Outcome::Added) {
        showMessage(added.outcome, file->title);
        return -1;
    }
    icons_[added.slot] = IcoFile(bytes).image(0);
    return added.slot;
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

void MultiIconBuilder::showMessage(Outcome outcome, const QString& fileTitle) {
    if (outcome == Outcome::LimitReached)
        dialogs_.showMessage(QStringLiteral("Sollent"), addMessage(outcome, fileTitle),
                             MessageIcon::Information);
    else
        showError(addMessage(outcome, fileTitle));
}

void MultiIconBuilder::showError(const QString& text) {
    dialogs_.showMessage(ModFileIO::errorTitle(), text, MessageIcon::Exclamation);
}
