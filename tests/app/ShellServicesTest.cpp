#include "app/QtUserDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(QtUserDialogs, FileDialogsOfEachModeAndTheChoiceTheyGive) {
    // Mode, title, default suffix (none for the open dialogs), filters.
    const std::tuple<FileDialogMode, const char*, const char*, const char*> cases[] = {
        {FileDialogMode::Open, "Sollent - Open", "", "Windows Icon (*.ico)"},
        {FileDialogMode::SaveAs, "Sollent - Save As", "ico", "Windows Icon (*.ico)"},
        {FileDialogMode::SaveAsBitmap, "Sollent - Save As Bitmap", "bmp", "Windows Bitmap (*.bmp)"},
        {FileDialogMode::SaveAsCursor, "Sollent - Save As Cursor", "cur", "Windows Cursor (*.cur)"},
        {FileDialogMode::Extract, "Sollent - Extract Icon", "",
         "ActiveX Control (*.ocx);;Animated Cursor (*.ani);;Dynamic Link Library (*.dll);;"
         "Executable (*.exe);;Icon Library (*.icl);;All Files (*.*)"},
    };
    QTemporaryDir folder;
    for (const auto& [mode, title, suffix, filters] : cases) {
        SCOPED_TRACE(title);
        const bool save = *suffix != 0;
        auto dialog = QtUserDialogs::makeFileDialog(mode, folder.path(), nullptr);
        EXPECT_EQ(dialog->windowTitle(), title);
        EXPECT_EQ(dialog->nameFilters().join(";;"), filters);
        EXPECT_EQ(dialog->selectedNameFilter(), dialog->nameFilters().first());
        EXPECT_EQ(dialog->defaultSuffix(), suffix);
        EXPECT_EQ(dialog->acceptMode(), save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog->fileMode(), save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(QDir(dialog->directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
    }
    auto dialog = QtUserDialogs::makeFileDialog(FileDialogMode::Extract, folder.path(), nullptr);
    dialog->selectNameFilter("Executable (*.exe)");
    dialog->selectFile(folder.filePath("tool.exe"));
    const FileChoice choice = QtUserDialogs::choiceOf(*dialog);
    EXPECT_EQ(QFileInfo(choice.path).fileName(), "tool.exe");
    EXPECT_EQ(choice.title, "tool.exe");
    EXPECT_EQ(choice.filterIndex, 4);
}

} // namespace
