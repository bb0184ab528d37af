#pragma once

#include "canvas/Canvas.h"
#include "document/IconDocument.h"
#include "editing/ModUndoRedo.h"
#include "editing/Selection.h"
#include "fileio/FileCommands.h"
#include "platform/Services.h"
#include "settings/ModRecent.h"
#include "settings/ModRegistry.h"
#include "tools/ButtonColours.h"
#include "tools/ColourPickers.h"
#include "tools/DrawingTools.h"

#include <QString>

// The main window's state and commands, with no window: the Qt shell
// (frmMain) forwards menu, mouse and key events here and puts the planes this
// composes on screen. Tests drive it directly.
class Editor {
  public:
    explicit Editor(Services services);

    // Start-up as far as the window's look is not concerned: the new 32 x 32
    // document.
    void startUp();
    // Shutdown; false when the user cancelled the save-changes prompt.
    bool shutDown();
    // The recent files and folder: taken from the store at start-up, written
    // back at shutdown.
    void loadSettings();
    void saveSettings();

    // New icon of size index 0, 1, 2 (16, 32, 48). Does nothing when the
    // save-changes prompt is cancelled.
    void newIcon(int sizeIndex);

    // The redraw after every change of the planes; sets modified.
    void refresh();
    // The editing convention's tail: clear redo, record the new state.
    void recordEdit();

    // Edit menu item (0 Undo, 1 Redo, 3 Cut, 4 Copy, 5 Paste, 6 Paste Opaque,
    // 7 Delete, 9 Deselect, 10 Select All).
    void editAction(int index);
    void undo();
    void redo();

    // The path handed in at start: checked, then opened.
    void commandLineOpen(const QString& commandLine);
    // Files dropped on the window: the first one is opened.
    void dropFiles(const QStringList& paths);
    // A click on MnuRecent(index), 1..4.
    void recentClick(int index);
    // Whether the Edit menu's items are enabled, by MnuEditAction index.
    bool editActionEnabled(int index) const;

    // Commits a marked or floating selection, if there is one.
    void commitSelection();
    // Runs the save-changes prompt when the document is modified; false on
    // Cancel.
    bool offerToSave();

    Services services;
    IconDocument doc;
    Canvas canvas;
    ModUndoRedo undoRedo;
    ButtonColours colours;
    ColourPickers pickers;
    DrawingTools tools;
    Selection selection;
    FileCommands files;
    ModRecent recent;
    ModRegistry registry;
    // Where the file dialogs open: the folder of the last file chosen in one,
    // or the one stored from the last run. Empty lets the dialog choose.
    QString recentFolder;

    QString windowTitle = QStringLiteral("Brevik - Untitled");
    // The two read-out lines beside ImgXY and ImgToXY.
    QString readoutXY;
    QString readoutToXY;
};
