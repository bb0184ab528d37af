#include "fileio/FileCommands.h"

#include "app/Editor.h"

bool FileCommands::save() { return saveSucceeded; }

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
