#pragma once

#include <QString>
#include <QStringList>

class Editor;

// The File menu's Open, Save, Save As, Save As Bitmap and Save As Cursor.
class FileCommands {
public:
    explicit FileCommands(Editor& editor) : editor_(editor) {}

    // File > Open with its dialog.
    void open();
    // Opens path without a dialog (command line, recent entry, dropped file);
    // false when nothing was opened.
    bool openPath(const QString& path, const QString& title);
    // Save, or Save As for a document without a file; true when written.
    bool save();
    void saveAs();
    void saveAsBitmap();
    void saveAsCursor();
    // "Save changes to ...?": Yes saves, No drops the changes, Cancel answers
    // false and the caller stops.
    bool saveChangesPrompt();

    // Set by every Save and Save As that ran to a result.
    bool saveSucceeded = false;

private:
    Editor& editor_;
};
