#pragma once

#include "session/EditorDialogs.h"

#include <memory>

class QFileDialog;
class QWidget;

// The program's questions as real dialogs: message boxes, the common file
// dialog and the program's own small dialogs, each modal over the main window.
class QtUserDialogs : public EditorDialogs {
  public:
    explicit QtUserDialogs(QWidget* owner) : owner_(owner) {}

    void showMessage(const QString& title, const QString& text, MessageIcon icon) override;
    PromptAnswer askYesNoCancel(const QString& title, const QString& text) override;
    std::optional<FileChoice> chooseFile(FileDialogMode mode, const QString& startFolder) override;
    int chooseIconLine(const QStringList& lines) override;
    int choosePasteOption() override;
    std::optional<HotSpot> chooseHotSpot(const Plane& canvas, int zoom, int maxIndex) override;
    bool adjustColours(ColourAdjustment& adjustment) override;
    std::optional<Plane> chooseGradient(int size) override;
    std::optional<ExtractedIconChoice> chooseExtractedIcon(const QString& startFile,
                                                           QString& recentFolder) override;
    std::optional<TextPlanes> addText(int size) override;
    std::optional<Plane> captureScreen(int iconSize) override;

    // The file dialog of a mode, set up but not shown: title, filters,
    // default extension, overwrite confirmation and starting folder.
    static std::unique_ptr<QFileDialog> makeFileDialog(FileDialogMode mode,
                                                       const QString& startFolder, QWidget* owner);
    // What the dialog answered: full path, file name, and the chosen filter
    // counted from 1.
    static FileChoice choiceOf(const QFileDialog& dialog);

  private:
    QWidget* owner_;
};
