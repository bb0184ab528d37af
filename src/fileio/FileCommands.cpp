#include "fileio/FileCommands.h"

#include "canvas/Canvas.h"
#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/ModUndoRedo.h"
#include "fileio/IconListing.h"
#include "fileio/ModFileIO.h"
#include "fileio/ModPalette.h"
#include "platform/Raster.h"
#include "platform/Services.h"
#include "settings/ModRecent.h"

#include <QFileInfo>

namespace {

const QString kErrorTitle = QStringLiteral("Brevik - Error");

// Runs its action when the scope ends, whichever way.
class OnExit {
  public:
    explicit OnExit(std::function<void()> action) : action_(std::move(action)) {}
    ~OnExit() {
        if (action_)
            action_();
    }
    OnExit(const OnExit&) = delete;
    OnExit& operator=(const OnExit&) = delete;

  private:
    std::function<void()> action_;
};

} // namespace

void FileCommands::open() {
    runOpen(std::nullopt);
}

bool FileCommands::openPath(const QString& path, const QString& title) {
    return runOpen(FileChoice{path, title});
}

bool FileCommands::runOpen(const std::optional<FileChoice>& handedIn) {
    if (!context_.mayReplaceDocument())
        return false;
    if (disableCanvas)
        disableCanvas();
    const OnExit enableLater(startEnableTimer);

    std::optional<FileChoice> file = handedIn ? handedIn : chooseFile(FileDialogMode::Open);
    if (!file)
        return false;
    return loadIcons(*file);
}

bool FileCommands::loadIcons(const FileChoice& file) {
    IconDocument& doc = context_.doc();
    const IcoFile icons = ModFileIO::readIconFile(file.path);
    if (!icons.isIconFile()) {
        showError(file.title + QStringLiteral(" is not a valid icon file."));
        return false;
    }
    const int count = icons.count();
    if (count == 0) {
        showError(QStringLiteral("Unable to read data from ") + file.title);
        return false;
    }
    IconLoadResult loaded;
    IconDescription description;
    if (count > 1) {
        const auto lines = icons.listing();
        if (!lines) {
            showError(QStringLiteral("An error occurred while loading ") + file.title);
            return false;
        }
        QStringList texts;
        for (const IconListLine& line : *lines)
            texts << line.text;
        const int chosen = dialogs_.chooseIconLine(texts);
        if (chosen >= 0 && chosen < static_cast<int>(lines->size()))
            description = IconListing::describe(chosen, (*lines)[chosen]);
        if (description.width == 0) {
            // Intended: a cancelled choice still marks the document as having
            // a file, so the caller takes the open as handled.
            doc.hasFile = true;
            return true;
        }
        loaded = icons.chosenImage(description);
    } else {
        loaded = icons.image(0);
    }
    if (!loaded.ok()) {
        userDialogs().showMessage(ModFileIO::errorTitle(),
                                  ModFileIO::loadMessage(loaded, count > 1),
                                  MessageIcon::Exclamation);
        return false;
    }
    install(loaded);
    if (count > 1) {
        currentIcon = description;
        multiImage = true;
    }

    context_.undoRedo().Reset();
    context_.undoRedo().Push(doc);
    doc.windowTitle = QStringLiteral("Brevik - ") + file.title;
    doc.filePath = file.path;
    doc.fileTitle = file.title;
    recent_.AddRecent(file.path);
    doc.hasFile = true;
    return true;
}

void FileCommands::install(const IconLoadResult& loaded) {
    IconDocument& doc = context_.doc();
    // Open has already offered to save; whatever the answer, the old
    // picture is being replaced and New must not ask again.
    doc.modified = false;
    doc.opening = true;
    context_.newIcon(IconDocument::indexForSize(loaded.width));
    doc.opening = false;
    bitBlt(doc.PicMask, 0, 0, doc.size, doc.size, loaded.mask, 0, 0, RasterOp::Copy);
    bitBlt(doc.PicImage, 0, 0, doc.size, doc.size, loaded.image, 0, 0, RasterOp::Copy);
    // Composed, not refreshed: a freshly opened file is not modified.
    context_.canvas().compose(doc);
}

bool FileCommands::save() {
    IconDocument& doc = context_.doc();
    if (doc.filePath.isEmpty()) {
        saveAs();
        return saveSucceeded;
    }
    context_.commitSelection();
    context_.services().showBusy(true);
    const bool written = writeDocument(doc.filePath, QString());
    context_.services().showBusy(false);
    if (!written) {
        saveSucceeded = false;
        showError(QStringLiteral("Unable to save the file ") + doc.fileTitle);
        return false;
    }
    doc.modified = false;
    saveSucceeded = true;
    return true;
}

void FileCommands::saveAs() {
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::SaveAs);
    if (!file)
        return;
    IconDocument& doc = context_.doc();
    context_.commitSelection();
    context_.services().showBusy(true);
    const bool written = writeDocument(doc.filePath, file->path);
    context_.services().showBusy(false);
    if (!written) {
        saveSucceeded = false;
        showError(QStringLiteral("Unable to save the file ") + file->title);
        return;
    }
    doc.filePath = file->path;
    doc.fileTitle = file->title;
    doc.windowTitle = QStringLiteral("Brevik - ") + file->title;
    recent_.AddRecent(file->path);
    saveSucceeded = true;
    doc.modified = false;
}

bool FileCommands::writeDocument(const QString& source, const QString& destination) {
    const IconDocument& doc = context_.doc();
    const int colours = ModPalette::countColours(doc.PicImage, true);
    if (multiImage)
        return ModFileIO::rewriteMultiIcon(doc.PicMask, doc.PicImage, colours, currentIcon, source,
                                           destination);
    return ModFileIO::writeIcon(doc.PicMask, doc.PicImage, colours,
                                destination.isEmpty() ? source : destination);
}

void FileCommands::saveAsBitmap() {
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::SaveAsBitmap);
    if (!file)
        return;
    context_.commitSelection();
    const IconDocument& doc = context_.doc();
    // The picture as it shows over a white background: transparent pixels
    // become white, inverting ones white XOR their colour.
    Plane PicClip(doc.size, doc.size, kWhite);
    drawMasked(PicClip, 0, 0, doc.PicMask, doc.PicImage);
    const int colours = ModPalette::countColours(PicClip, false);
    if (!ModFileIO::writeBitmap(PicClip, colours, file->path))
        showError(QStringLiteral("Failed to Save Icon As Bitmap."));
}

void FileCommands::saveAsCursor() {
    const std::optional<HotSpot> hotSpot = dialogs_.chooseHotSpot(
        context_.canvas().PicMain, context_.doc().zoom, context_.doc().maxIndex);
    if (!hotSpot)
        return;
    const std::optional<FileChoice> file = chooseFile(FileDialogMode::SaveAsCursor);
    if (!file)
        return;
    context_.commitSelection();
    const IconDocument& doc = context_.doc();
    const int colours = ModPalette::countColours(doc.PicImage, true);
    if (!ModFileIO::writeCursor(doc.PicMask, doc.PicImage, colours, hotSpot->x, hotSpot->y,
                                file->path))
        showError(QStringLiteral("Failed to Save Icon As Cursor."));
}

bool FileCommands::saveChangesPrompt() {
    IconDocument& doc = context_.doc();
    const QString name = doc.fileTitle.isEmpty() ? QStringLiteral("Untitled.ico") : doc.fileTitle;
    const PromptAnswer answer = userDialogs().askYesNoCancel(
        QStringLiteral("Brevik - Save Changes?"),
        QStringLiteral("Save changes to ") + name + QStringLiteral("?"));
    switch (answer) {
    case PromptAnswer::Yes:
        // A Save As cancelled from here leaves saveSucceeded as it was, and
        // that is the answer.
        save();
        return saveSucceeded;
    case PromptAnswer::No:
        doc.modified = false;
        return true;
    case PromptAnswer::Cancel:
        break;
    }
    return false;
}

std::optional<FileChoice> FileCommands::chooseFile(FileDialogMode mode) {
    std::optional<FileChoice> choice = userDialogs().chooseFile(mode, recentFolder_);
    if (choice)
        recentFolder_ = QFileInfo(choice->path).absolutePath();
    return choice;
}

UserDialogs& FileCommands::userDialogs() {
    return context_.services().dialogs;
}

void FileCommands::showError(const QString& text) {
    userDialogs().showMessage(kErrorTitle, text, MessageIcon::Exclamation);
}
