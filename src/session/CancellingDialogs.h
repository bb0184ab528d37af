#pragma once

#include "session/EditorDialogs.h"

// Answers every question with Cancel and shows no message: an editor run
// with no one to ask (a script, a command-line tool) stops wherever a user
// would have been asked.
class CancellingDialogs : public EditorDialogs {
  public:
    void showMessage(const QString&, const QString&, MessageIcon) override {}
    PromptAnswer askYesNoCancel(const QString&, const QString&) override {
        return PromptAnswer::Cancel;
    }
    std::optional<FileChoice> chooseFile(FileDialogMode, const QString&) override { return {}; }
    int chooseIconLine(const QStringList&) override { return -1; }
    std::optional<HotSpot> chooseHotSpot(const Plane&, int, int) override { return {}; }
    std::optional<ExtractedIconChoice> chooseExtractedIcon(const QString&, QString&) override {
        return {};
    }
    int choosePasteOption() override { return -1; }
    bool adjustColours(ColourAdjustment&) override { return false; }
    std::optional<Plane> chooseGradient(int) override { return {}; }
    std::optional<TextPlanes> addText(int) override { return {}; }
    std::optional<Plane> captureScreen(int) override { return {}; }
};
