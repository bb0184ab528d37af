#pragma once

#include "platform/Plane.h"

#include <QString>
#include <QStringList>

#include <optional>

enum class MessageIcon { Information, Exclamation, Question };
enum class PromptAnswer { Yes, No, Cancel };

// The modes of the common file dialog, numbered as the file commands use them.
enum class FileDialogMode { Open = 1, SaveAs = 2, SaveAsBitmap = 3, SaveAsCursor = 4, Extract = 5 };

struct FileChoice {
    QString path;  // full path
    QString title; // file name without its folder
    int filterIndex = 1;
};

struct HotSpot {
    int x = 0;
    int y = 0;
};

// Every modal question the program asks goes through here. The program
// answers with real Qt dialogs; tests answer with a scripted double.
class UserDialogs {
  public:
    virtual ~UserDialogs() = default;

    virtual void showMessage(const QString& title, const QString& text, MessageIcon icon) = 0;
    // Yes / No / Cancel with the question icon.
    virtual PromptAnswer askYesNoCancel(const QString& title, const QString& text) = 0;
    // Empty when the user cancels. startFolder is where the dialog opens.
    virtual std::optional<FileChoice> chooseFile(FileDialogMode mode,
                                                 const QString& startFolder) = 0;
    // "Multi Icon Resource": the chosen line's index, or -1 on Cancel.
    virtual int chooseIconLine(const QStringList& lines) = 0;
    // "Paste Options": 0 "Shrink To Fit", 1 "Shrink To Fit (Keep Aspect)", -1 cancelled.
    virtual int choosePasteOption() = 0;
    // "Select Hot Spot", shown over the zoomed canvas; empty when cancelled.
    virtual std::optional<HotSpot> chooseHotSpot(const Plane& canvas, int zoom, int maxIndex) = 0;
};
