#pragma once

#include "fileio/FileDialogs.h"
#include "fileio/IconFileTypes.h"
#include "platform/UserDialogs.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class EditContext;
class ModRecent;

// The File menu's Open, Save, Save As, Save As Bitmap and Save As Cursor,
// the save-changes prompt and the file dialog they all open.
class FileCommands {
  public:
    // recentFolder is where the file dialogs open; a chosen file's folder
    // becomes the new one.
    FileCommands(EditContext& context, FileDialogs& dialogs, ModRecent& recent,
                 QString& recentFolder)
        : context_(context), dialogs_(dialogs), recent_(recent), recentFolder_(recentFolder) {}

    // File > Open with its dialog.
    void open();
    // Opens path without a dialog (command line, recent entry, dropped file).
    // False when the document was left without a file; a cancelled choice
    // in a multi-image file counts as handled.
    bool openPath(const QString& path, const QString& title);
    // Save, or Save As for a document without a file; true when written.
    bool save();
    void saveAs();
    void saveAsBitmap();
    void saveAsCursor();
    // "Save changes to ...?": Yes saves, No drops the changes, Cancel answers
    // false and the caller stops.
    bool saveChangesPrompt();

    // The common file dialog, opened in the recent folder; a chosen file
    // makes its folder the recent folder.
    std::optional<FileChoice> chooseFile(FileDialogMode mode);
    // A warning titled "Brevik - Error", as the main window's commands
    // report their failures.
    void showError(const QString& text);

    // Set by every Save and Save As that ran to a result.
    bool saveSucceeded = false;
    // Raised by loading from a multi-image file, lowered only by New: while
    // raised, Save and Save As rewrite the whole file.
    bool multiImage = false;
    // The image chosen from the multi-image file last opened.
    IconDescription currentIcon;

    // Open keeps the canvas from taking the mouse release that ends a
    // double-click in its dialog: disableCanvas runs before the dialog, and
    // on every way out startEnableTimer asks for the canvas to be enabled
    // again at the next timer tick (the shell's TmrEnable). Empty in tests.
    std::function<void()> disableCanvas;
    std::function<void()> startEnableTimer;

  private:
    bool runOpen(const std::optional<FileChoice>& handedIn);
    bool loadIcons(const FileChoice& file);
    // Gives the document the loaded image's size and planes; a load that
    // succeeded always has an editable size.
    void install(const IconLoadResult& loaded);
    // The icon, or the whole multi-image file, to path; source is the file
    // the other images come from.
    bool writeDocument(const QString& source, const QString& destination);
    UserDialogs& userDialogs();

    EditContext& context_;
    FileDialogs& dialogs_;
    ModRecent& recent_;
    QString& recentFolder_;
};
