#include "app/Editor.h"

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

Editor::Editor(Services s) : services(std::move(s)), tools(*this), selection(*this), files(*this) {
    if (!services.random)
        services.random = clockSeededRandom();
}

void Editor::startUp() {
    loadSettings();
    newIcon(1);
}

bool Editor::shutDown() {
    commitSelection();
    if (doc.modified && !offerToSave())
        return false;
    undoRedo.Reset();
    saveSettings();
    return true;
}

void Editor::loadSettings() {
    registry.LoadRecentFiles(recent);
    recentFolder = registry.LoadRecentFolder();
}

void Editor::saveSettings() {
    registry.SaveRecentFiles(recent);
    // With no folder of its own yet the program started in the working
    // directory, and that is where the dialogs would have opened.
    registry.SaveRecentFolder(recentFolder.isEmpty() ? QDir::currentPath() : recentFolder);
}

void Editor::newIcon(int sizeIndex) {
    commitSelection();
    if (doc.modified && !offerToSave())
        return;
    if (!doc.opening) {
        windowTitle = QStringLiteral("Brevik - Untitled");
        files.multiImage = false;
    }
    canvas.PicIcon.fill(kButtonFace);
    doc.filePath.clear();
    doc.fileTitle.clear();
    tools.resetToPencil();
    doc.hasFile = false;
    services.letEventsRun();
    doc.resize(sizeIndex);
    canvas.placePreview(doc.size);
    canvas.clear();
    canvas.drawBackground(doc.zoom);
    canvas.present(doc.zoom);
    colours.reset();
    if (!doc.opening) {
        undoRedo.Reset();
        undoRedo.Push(doc);
    }
    doc.modified = false;
}

void Editor::refresh() {
    canvas.refreshFromPlanes(doc);
}

void Editor::recordEdit() {
    undoRedo.ClearRedo();
    undoRedo.Push(doc);
}

void Editor::editAction(int index) {
    switch (index) {
    case 0:
        undo();
        break;
    case 1:
        redo();
        break;
    // Cut, Copy and Delete can be reached through their shortcuts while
    // greyed; without a selection they have nothing to work on.
    case 3:
        if (selection.exists())
            selection.Cut();
        break;
    case 4:
        if (selection.exists())
            selection.Copy();
        break;
    case 7:
        if (selection.exists())
            selection.Delete(selection.SelMarked);
        break;
    case 5:
    case 6:
        selection.Paste(index == 6);
        break;
    case 9:
        commitSelection();
        break;
    case 10:
        selection.SelectAll();
        break;
    default:
        break;
    }
}

void Editor::undo() {
    commitSelection();
    undoRedo.Undo(doc);
    refresh();
}

void Editor::redo() {
    commitSelection();
    undoRedo.Redo(doc);
    refresh();
}

void Editor::commitSelection() {
    if (selection.exists())
        selection.CommitSelection();
}

bool Editor::offerToSave() {
    return files.saveChangesPrompt();
}

void Editor::commandLineOpen(const QString& commandLine) {
    if (commandLine.isEmpty())
        return;
    // Taken as it stands: quotes or blanks around the path make it a file
    // that does not exist. Anything that exists has a name to show, so a
    // folder or an unreadable file goes on to Open and its message.
    const QFileInfo file(commandLine);
    if (!file.exists()) {
        files.showError(QStringLiteral("Failed to open file."));
        return;
    }
    if (commandLine.right(4).toLower() != QStringLiteral(".ico")) {
        files.showError(QStringLiteral("Invalid file extension."));
        return;
    }
    if (!files.openPath(commandLine, file.fileName()))
        files.showError(QStringLiteral("Failed to open file."));
}

void Editor::dropFiles(const QStringList& paths) {
    commitSelection();
    if (doc.modified && !offerToSave())
        return;
    if (!paths.isEmpty())
        files.openPath(paths.first(), QFileInfo(paths.first()).fileName());
}

void Editor::recentClick(int index) {
    if (index < 1 || index > ModRecent::kEntries)
        return;
    commitSelection();
    if (doc.modified && !offerToSave())
        return;
    const QString path = recent.MnuRecent[index].tag;
    if (path.isEmpty())
        return;
    if (QFileInfo(path).isFile()) {
        if (!files.openPath(path, ModRecent::FileNameOf(path))) {
            recent.MnuRecent[index].tag.clear();
            recent.RemoveRecent(path);
        }
        return;
    }
    files.showError(QStringLiteral("Unable to locate the file ") + ModRecent::FileNameOf(path));
    recent.RemoveRecent(path);
}

bool Editor::editActionEnabled(int index) const {
    switch (index) {
    case 0:
        return undoRedo.canUndo();
    case 1:
        return undoRedo.canRedo();
    case 3:
    case 4:
    case 7:
    case 9:
        return selection.exists();
    case 5:
    case 6:
        return services.clipboard && services.clipboard->hasImage();
    default:
        return true;
    }
}
