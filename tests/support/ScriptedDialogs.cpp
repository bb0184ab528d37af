#include "support/ScriptedDialogs.h"

namespace {

template <typename T> T takeOr(std::deque<T>& queue, T fallback) {
    if (queue.empty())
        return fallback;
    T front = queue.front();
    queue.pop_front();
    return front;
}

} // namespace

void ScriptedDialogs::showMessage(const QString& title, const QString& text, MessageIcon icon) {
    messages.push_back({title, text, icon});
}

PromptAnswer ScriptedDialogs::askYesNoCancel(const QString&, const QString& text) {
    promptTexts.push_back(text);
    return takeOr(prompts, PromptAnswer::Cancel);
}

std::optional<FileChoice> ScriptedDialogs::chooseFile(FileDialogMode mode,
                                                      const QString& startFolder) {
    fileModes.push_back(mode);
    fileStartFolders.push_back(startFolder);
    return takeOr(files, std::optional<FileChoice>());
}

int ScriptedDialogs::chooseIconLine(const QStringList& lines) {
    iconListings.push_back(lines);
    return takeOr(iconLines, -1);
}

int ScriptedDialogs::choosePasteOption() {
    ++pasteDialogs;
    return takeOr(pasteOptions, -1);
}

std::optional<HotSpot> ScriptedDialogs::chooseHotSpot(const Plane&, int, int) {
    ++hotSpotDialogs;
    return takeOr(hotSpots, std::optional<HotSpot>());
}

bool ScriptedDialogs::adjustColours(ColourAdjustment& adjustment) {
    const auto user = takeOr(colourAdjustments, std::function<bool(ColourAdjustment&)>());
    return user && user(adjustment);
}

std::optional<Plane> ScriptedDialogs::chooseGradient(int size) {
    gradientSizes.push_back(size);
    return takeOr(gradients, std::optional<Plane>());
}

std::optional<ExtractedIconChoice> ScriptedDialogs::chooseExtractedIcon(const QString& startFile,
                                                                        QString&) {
    extractStartFiles.push_back(startFile);
    return takeOr(extractedIcons, std::optional<ExtractedIconChoice>());
}

std::optional<TextPlanes> ScriptedDialogs::addText(int size) {
    textSizes.push_back(size);
    return takeOr(texts, std::optional<TextPlanes>());
}

std::optional<Plane> ScriptedDialogs::captureScreen(int iconSize) {
    captureSizes.push_back(iconSize);
    return takeOr(captures, std::optional<Plane>());
}
