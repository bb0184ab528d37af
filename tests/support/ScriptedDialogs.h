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
        QString title, text;
        MessageIcon icon;
    };

    void showMessage(const QString& title, const QString& text, MessageIcon icon) override {
        messages.push_back({title, text, icon});
    }
    PromptAnswer askYesNoCancel(const QString&, const QString& text) override {
        promptTexts.push_back(text);
        return takeOr(prompts, PromptAnswer::Cancel);
    }
    std::optional<FileChoice> chooseFile(FileDialogMode mode, const QString& startFolder) override {
        fileModes.push_back(mode);
        fileStartFolders.push_back(startFolder);
        return takeOr(files);
    }
    int chooseIconLine(const QStringList& lines) override {
        iconListings.push_back(lines);
        return takeOr(iconLines, -1);
    }
    int choosePasteOption() override {
        ++pasteDialogs;
        return takeOr(pasteOptions, -1);
    }
    std::optional<HotSpot> chooseHotSpot(const Plane&, int, int) override {
        return takeOr(hotSpots);
    }
    bool adjustColours(ColourAdjustment& adjustment) override {
        const auto user = takeOr(colourAdjustments);
        return user && user(adjustment);
    }
    std::optional<Plane> chooseGradient(int size) override {
        gradientSizes.push_back(size);
        return takeOr(gradients);
    }
    std::optional<ExtractedIconChoice> chooseExtractedIcon(const QString& startFile,
                                                           QString&) override {
        extractStartFiles.push_back(startFile);
        return takeOr(extractedIcons);
    }
    std::optional<TextPlanes> addText(int size) override {
        textSizes.push_back(size);
        return takeOr(texts);
    }
    std::optional<Plane> captureScreen(int iconSize) override {
        captureSizes.push_back(iconSize);
        return takeOr(captures);
    }

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
    std::vector<int> gradientSizes;
    std::vector<QString> extractStartFiles;
    std::vector<int> textSizes;
    std::vector<int> captureSizes;

  private:
    template <typename T> static T takeOr(std::deque<T>& queue, T fallback = T()) {
        if (queue.empty())
            return fallback;
        T front = queue.front();
        queue.pop_front();
        return front;
    }
};
