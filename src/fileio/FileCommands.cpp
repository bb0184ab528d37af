#include "fileio/FileCommands.h"

#include "app/Editor.h"

void FileCommands::open() {}
bool FileCommands::openPath(const QString&, const QString&) { return false; }
bool FileCommands::save() { return saveSucceeded; }
void FileCommands::saveAs() {}
void FileCommands::saveAsBitmap() {}
void FileCommands::saveAsCursor() {}

bool FileCommands::saveChangesPrompt() {
    IconDocument& doc = editor_.doc;
    const QString name = doc.fileTitle.isEmpty() ? QStringLiteral("Untitled.ico") : doc.fileTitle;
    const PromptAnswer answer = editor_.services.dialogs->askYesNoCancel(
        QStringLiteral("Brevik - Save Changes?"), QStringLiteral("Save changes to ") + name +
                                                      QStringLiteral("?"));
    switch (answer) {
    case PromptAnswer::Yes:
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
