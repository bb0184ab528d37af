#include "app/QtUserDialogs.h"

#include "dialogs/FrmColAdj.h"
#include "dialogs/FrmGrad.h"
#include "dialogs/FrmHotSpot.h"
#include "dialogs/FrmIcons.h"
#include "dialogs/FrmMultiIconDialog.h"
#include "dialogs/FrmPaste.h"
#include "dialogs/FrmSnap.h"
#include "dialogs/FrmTxt.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

struct ModeSetup {
    const char* title;
    bool save;
    const char* suffix;
    QStringList filters;
};

ModeSetup setupOf(FileDialogMode mode) {
    switch (mode) {
    case FileDialogMode::Open:
        return {"Sollent - Open", false, "", {"Windows Icon (*.ico)"}};
    case FileDialogMode::SaveAs:
        return {"Sollent - Save As", true, "ico", {"Windows Icon (*.ico)"}};
    case FileDialogMode::SaveAsBitmap:
        return {"Sollent - Save As Bitmap", true, "bmp", {"Windows Bitmap (*.bmp)"}};
    case FileDialogMode::SaveAsCursor:
        return {"Sollent - Save As Cursor", true, "cur", {"Windows Cursor (*.cur)"}};
    case FileDialogMode::Extract:
        break;
    }
    return {"Sollent - Extract Icon",
            false,
            "",
            {"ActiveX Control (*.ocx)", "Animated Cursor (*.ani)", "Dynamic Link Library (*.dll)",
             "Executable (*.exe)", "Icon Library (*.icl)", "All Files (*.*)"}};
}

QMessageBox::Icon boxIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        break;
    }
    return QMessageBox::Warning;
}

} // namespace

void QtUserDialogs::showMessage(const QString& title, const QString& text, MessageIcon icon) {
    QMessageBox box(boxIcon(icon), title, text, QMessageBox::Ok, owner_);
    box.exec();
}

PromptAnswer QtUserDialogs::askYesNoCancel(const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Question, title, text,
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, owner_);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    default:
        return PromptAnswer::Cancel;
    }
}

std::unique_ptr<QFileDialog>
QtUserDialogs::makeFileDialog(FileDialogMode mode, const QString& startFolder, QWidget* owner) {
    const ModeSetup setup = setupOf(mode);
    auto dialog = std::make_unique<QFileDialog>(owner, QString::fromLatin1(setup.title));
    dialog->setNameFilters(setup.filters);
    dialog->selectNameFilter(setup.filters.first());
    if (!startFolder.isEmpty())
        dialog->setDirectory(startFolder);
    if (setup.save) {
        // Saving asks before it replaces a file (Qt's default, kept on purpose)
        // and needs an existing folder.
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setDefaultSuffix(QString::fromLatin1(setup.suffix));
    } else {
        dialog->setAcceptMode(QFileDialog::AcceptOpen);
        dialog->setFileMode(QFileDialog::ExistingFile);
    }
    return dialog;
}

FileChoice QtUserDialogs::choiceOf(const QFileDialog& dialog) {
    FileChoice choice;
    const QStringList files = dialog.selectedFiles();
    choice.path = files.isEmpty() ? QString() : files.first();
    choice.title = QFileInfo(choice.path).fileName();
    choice.filterIndex =
        static_cast<int>(dialog.nameFilters().indexOf(dialog.selectedNameFilter())) + 1;
    return choice;
}

std::optional<FileChoice> QtUserDialogs::chooseFile(FileDialogMode mode,
                                                    const QString& startFolder) {
    auto dialog = makeFileDialog(mode, startFolder, owner_);
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return std::nullopt;
    return choiceOf(*dialog);
}

int QtUserDialogs::chooseIconLine(const QStringList& lines) {
    FrmMultiIconDialog dialog(lines, owner_);
    dialog.exec();
    return dialog.chosenLine();
}

int QtUserDialogs::choosePasteOption() {
    FrmPaste dialog(owner_);
    dialog.exec();
    return dialog.PasteChoice();
}

std::optional<HotSpot> QtUserDialogs::chooseHotSpot(const Plane& canvas, int zoom, int maxIndex) {
    FrmHotSpot dialog(canvas, zoom, maxIndex, owner_);
    dialog.exec();
    if (dialog.cancelled())
        return std::nullopt;
    return dialog.hotSpot();
}

bool QtUserDialogs::adjustColours(ColourAdjustment& adjustment) {
    FrmColAdj dialog(adjustment, owner_);
    dialog.exec();
    return !dialog.cancelled();
}

std::optional<Plane> QtUserDialogs::chooseGradient(int size) {
    FrmGrad dialog(size, owner_);
    dialog.exec();
    if (dialog.cancelled())
        return std::nullopt;
    return dialog.gradient();
}

std::optional<ExtractedIconChoice> QtUserDialogs::chooseExtractedIcon(const QString& startFile,
                                                                      QString& recentFolder) {
    FrmIcons dialog(startFile, *this, recentFolder, owner_);
    dialog.exec();
    if (dialog.cancelled())
        return std::nullopt;
    return dialog.choice();
}

std::optional<TextPlanes> QtUserDialogs::addText(int size) {
    FrmTxt dialog(size, owner_);
    dialog.exec();
    return dialog.acceptedText();
}

std::optional<Plane> QtUserDialogs::captureScreen(int iconSize) {
    FrmSnap window(FrmSnap::grabScreens(), FrmSnap::desktopTopLeft(), iconSize, owner_);
    window.exec();
    return window.taken();
}
