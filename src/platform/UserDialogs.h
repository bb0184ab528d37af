#pragma once

#include <QString>

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

// The generic modal questions: a message, Yes / No / Cancel and the common
// file dialog. The subsystems' own dialogs have ports beside them
// (FileDialogs, EditingDialogs). The program answers with real Qt dialogs;
// tests answer with a scripted double.
class UserDialogs {
  public:
    virtual ~UserDialogs() = default;

    virtual void showMessage(const QString& title, const QString& text, MessageIcon icon) = 0;
    // Yes / No / Cancel with the question icon.
    virtual PromptAnswer askYesNoCancel(const QString& title, const QString& text) = 0;
    // Empty when the user cancels. startFolder is where the dialog opens.
    virtual std::optional<FileChoice> chooseFile(FileDialogMode mode,
                                                 const QString& startFolder) = 0;
};
