#pragma once

#include "canvas/Canvas.h"
#include "document/IconDocument.h"
#include "editing/EditAction.h"
#include "editing/EditContext.h"
#include "editing/ModUndoRedo.h"
#include "editing/Selection.h"
#include "fileio/ExtractCommand.h"
#include "fileio/FileCommands.h"
#include "operations/Operations.h"
#include "platform/Services.h"
#include "session/EditorDialogs.h"
#include "settings/ModRecent.h"
#include "settings/ModRegistry.h"
#include "tools/ButtonColours.h"
#include "tools/ColourPickers.h"
#include "tools/DrawingTools.h"
#include "tools/Readouts.h"

#include <QString>

// The main window's state and commands, with no window: the Qt shell
// (frmMain) forwards menu, mouse and key events here and puts the planes this
// composes on screen. Tests drive it directly. The subsystems reach it only
// as an EditContext.
class Editor final : public EditContext {
  public:
    Editor(EditorDialogs& dialogs, ClipboardService& clipboard);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // Start-up as far as the window's look is not concerned: the new 32 x 32
    // document.
    void startUp();
    // Shutdown; false when the user cancelled the save-changes prompt.
    bool shutDown();
    // The recent files and folder: taken from the store at start-up, written
    // back at shutdown.
    void loadSettings();
    void saveSettings();

    void editAction(EditAction item);
    void undo();
    void redo();
    // Whether an Edit menu item is enabled when the menu opens.
    bool editActionEnabled(EditAction item) const;

    // The path handed in at start: checked, then opened.
    void commandLineOpen(const QString& commandLine);
    // Files dropped on the window: the first one is opened.
    void dropFiles(const QStringList& paths);
    // A click on MnuRecent(index), 1..4.
    void recentClick(int index);

    // EditContext
    IconDocument& doc() override { return doc_; }
    Canvas& canvas() override { return canvas_; }
    Selection& selection() override { return selection_; }
    ModUndoRedo& undoRedo() override { return undoRedo_; }
    Services& services() override { return services_; }
    void commitSelection() override;
    bool mayReplaceDocument() override;
    void refresh() override;
    void recordEdit() override;
    void chooseSelectTool() override { tools_.chooseTool(DrawingTools::Select); }
    // Does nothing when the save-changes prompt is cancelled.
    void newIcon(int sizeIndex) override;

    const IconDocument& doc() const { return doc_; }
    const Selection& selection() const { return selection_; }
    ButtonColours& colours() { return colours_; }
    ColourPickers& pickers() { return pickers_; }
    DrawingTools& tools() { return tools_; }
    FileCommands& files() { return files_; }
    Operations& operations() { return operations_; }
    ExtractCommand& extraction() { return extraction_; }
    ModRecent& recent() { return recent_; }
    // The store of the recent files and folder; a test points it elsewhere.
    ModRegistry& registry() { return registry_; }
    // Where the file dialogs open: the folder of the last file chosen in one,
    // or the one stored from the last run. Empty lets the dialog choose.
    QString& recentFolder() { return recentFolder_; }
    const QString& windowTitle() const { return doc_.windowTitle; }
    const QString& readoutXY() const { return readouts_.xy; }
    const QString& readoutToXY() const { return readouts_.toXY; }

  private:
    Services services_;
    IconDocument doc_;
    Canvas canvas_;
    ModUndoRedo undoRedo_;
    ButtonColours colours_;
    ColourPickers pickers_;
    Readouts readouts_;
    Selection selection_;
    DrawingTools tools_;
    ModRecent recent_;
    ModRegistry registry_;
    QString recentFolder_;
    FileCommands files_;
    Operations operations_;
    ExtractCommand extraction_;
};
