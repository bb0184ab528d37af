#include "session/Editor.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <random>

namespace {

std::function<double()> clockSeededRandom() {
    auto engine = std::make_shared<std::mt19937>(
        static_cast<unsigned>(std::chrono::steady_clock::now().time_since_epoch().count()));
    return [engine] { return std::uniform_real_distribution<double>(0.0, 1.0)(*engine); };
}

} // namespace

Editor::Editor(EditorDialogs& dialogs, ClipboardService& clipboard)
    : services_(dialogs, clipboard), selection_(*this, dialogs),
      tools_(*this, colours_, pickers_.PicPal, readouts_),
      files_(*this, dialogs, recent_, recentFolder_), operations_(*this, dialogs),
      extraction_(*this, dialogs, recentFolder_) {
    services_.random = clockSeededRandom();
}

void Editor::startUp() {
    loadSettings();
    newIcon(1);
}

bool Editor::shutDown() {
    if (!mayReplaceDocument())
        return false;
    undoRedo_.Reset();
    saveSettings();
    return true;
}

void Editor::loadSettings() {
    registry_.LoadRecentFiles(recent_);
    recentFolder_ = registry_.LoadRecentFolder();
}

void Editor::saveSettings() {
    registry_.SaveRecentFiles(recent_);
    // With no folder of its own yet the program started in the working
    // directory, and that is where the dialogs would have opened.
    registry_.SaveRecentFolder(recentFolder_.isEmpty() ? QDir::currentPath() : recentFolder_);
}

void Editor::newIcon(int sizeIndex) {
    if (!mayReplaceDocument())
        return;
    if (!doc_.opening) {
        doc_.windowTitle = QStringLiteral("Brevik - Untitled");
        files_.multiImage = false;
    }
    canvas_.PicIcon.fill(canvas_.buttonFace);
    doc_.filePath.clear();
    doc_.fileTitle.clear();
    tools_.resetToPencil();
    doc_.hasFile = false;
    services_.letEventsRun();
    doc_.resize(sizeIndex);
    canvas_.placePreview(doc_.size);
    canvas_.clear();
    canvas_.drawBackground(doc_.zoom);
    canvas_.present(doc_.zoom);
    colours_.reset();
    if (!doc_.opening) {
        undoRedo_.Reset();
        undoRedo_.Push(doc_);
    }
    doc_.modified = false;
}

void Editor::refresh() {
    canvas_.refreshFromPlanes(doc_);
}

void Editor::recordEdit() {
    undoRedo_.ClearRedo();
    undoRedo_.Push(doc_);
}

void Editor::editAction(EditAction item) {
    switch (item) {
    case EditAction::Undo:
        undo();
        break;
    case EditAction::Redo:
        redo();
        break;
    // Cut, Copy and Delete can be reached through their shortcuts while
    // greyed; without a selection they have nothing to work on.
    case EditAction::Cut:
        if (selection_.exists())
            selection_.Cut();
        break;
    case EditAction::Copy:
        if (selection_.exists())
            selection_.Copy();
        break;
    case EditAction::Delete:
        if (selection_.exists())
            selection_.Delete(selection_.SelMarked);
        break;
    case EditAction::Paste:
    case EditAction::PasteOpaque:
        selection_.Paste(item == EditAction::PasteOpaque);
        break;
    case EditAction::Deselect:
        commitSelection();
        break;
    case EditAction::SelectAll:
        selection_.SelectAll();
        break;
    }
}

void Editor::undo() {
    commitSelection();
    undoRedo_.Undo(doc_);
    refresh();
}

void Editor::redo() {
    commitSelection();
    undoRedo_.Redo(doc_);
    refresh();
}

void Editor::commitSelection() {
    if (selection_.exists())
        selection_.CommitSelection();
}

bool Editor::mayReplaceDocument() {
    commitSelection();
    return !doc_.modified || files_.saveChangesPrompt();
}

void Editor::commandLineOpen(const QString& commandLine) {
    if (commandLine.isEmpty())
        return;
    // Taken as it stands: quotes or blanks around the path make it a file
    // that does not exist. Anything that exists has a name to show, so a
    // folder or an unreadable file goes on to Open and its message.
    const QFileInfo file(commandLine);
    if (!file.exists()) {
        files_.showError(QStringLiteral("Failed to open file."));
        return;
    }
    if (commandLine.right(4).toLower() != QStringLiteral(".ico")) {
        files_.showError(QStringLiteral("Invalid file extension."));
        return;
    }
    if (!files_.openPath(commandLine, file.fileName()))
        files_.showError(QStringLiteral("Failed to open file."));
}

void Editor::dropFiles(const QStringList& paths) {
    if (!mayReplaceDocument())
        return;
    if (!paths.isEmpty())
        files_.openPath(paths.first(), QFileInfo(paths.first()).fileName());
}

void Editor::recentClick(int index) {
    if (index < 1 || index > ModRecent::kEntries)
        return;
    if (!mayReplaceDocument())
        return;
    const QString path = recent_.MnuRecent[index].tag;
    if (path.isEmpty())
        return;
    if (QFileInfo(path).isFile()) {
        if (!files_.openPath(path, ModRecent::FileNameOf(path))) {
            recent_.MnuRecent[index].tag.clear();
            recent_.RemoveRecent(path);
        }
        return;
    }
    files_.showError(QStringLiteral("Unable to locate the file ") + ModRecent::FileNameOf(path));
    recent_.RemoveRecent(path);
}

bool Editor::editActionEnabled(EditAction item) const {
    switch (item) {
    case EditAction::Undo:
        return undoRedo_.canUndo();
    case EditAction::Redo:
        return undoRedo_.canRedo();
    case EditAction::Cut:
    case EditAction::Copy:
    case EditAction::Delete:
    case EditAction::Deselect:
        return selection_.exists();
    case EditAction::Paste:
    case EditAction::PasteOpaque:
        return services_.clipboard.hasImage();
    case EditAction::SelectAll:
        break;
    }
    return true;
}
