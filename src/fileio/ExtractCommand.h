#pragma once

#include <QString>

class EditContext;
class FileDialogs;

// File > Extract: an icon out of an executable, library, icon library or
// animated cursor, chosen in the extraction browser, becomes a new 32 x 32
// document.
class ExtractCommand {
  public:
    ExtractCommand(EditContext& context, FileDialogs& dialogs, QString& recentFolder)
        : context_(context), dialogs_(dialogs), recentFolder_(recentFolder) {}

    void run();

    // The file the browser opens on: the system's shell library, or the
    // program's own icon library where there is none (ShellLibrary). Set by
    // the main window at start-up.
    QString startFile;

  private:
    EditContext& context_;
    FileDialogs& dialogs_;
    QString& recentFolder_;
};
