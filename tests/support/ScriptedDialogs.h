#pragma once

#include "session/EditorDialogs.h"

#include <deque>
#include <functional>
#include <vector>

// Answers the editor's questions from a script and records every one asked.
// A question with no scripted answer cancels, so a test never hangs on one.
class ScriptedDialogs : public EditorDialogs {
  public:
    struct Message {
        QString title;
        QString text;
        MessageIcon icon;
    };

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

    // Scripted answers, used first to last.
    std::deque<PromptAnswer> prompts;
    std::deque<std::optional<FileChoice>> files;
    std::deque<int> iconLines;
    std::deque<int> pasteOptions;
    std::deque<std::optional<HotSpot>> hotSpots;
    // A user at "Color Adjustment": moves the spinners, answers true for Ok.
    std::deque<std::function<bool(ColourAdjustment&)>> colourAdjustments;
    // The gradient pictures "Gradient" answers with; nothing is Cancel.
    std::deque<std::optional<Plane>> gradients;
    std::deque<std::optional<ExtractedIconChoice>> extractedIcons;
    std::deque<std::optional<TextPlanes>> texts;
    std::deque<std::optional<Plane>> captures;

    // What was asked.
    std::vector<Message> messages;
    std::vector<QString> promptTexts;
    std::vector<FileDialogMode> fileModes;
    std::vector<QString> fileStartFolders;
    std::vector<QStringList> iconListings;
    int pasteDialogs = 0;
    int hotSpotDialogs = 0;
    std::vector<int> gradientSizes;
    std::vector<QString> extractStartFiles;
    std::vector<int> textSizes;
    std::vector<int> captureSizes;
};
