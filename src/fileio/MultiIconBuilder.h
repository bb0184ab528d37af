#pragma once

#include "fileio/IconFileTypes.h"
#include "fileio/MultiIconResource.h"
#include "platform/UserDialogs.h"

#include <QString>

#include <array>
#include <optional>

// The commands of "Create Multi Icon Resource": Open fills a slot from a
// one-image icon file, Delete empties one, Create writes the filled slots as
// one icon file. Each command asks and reports through the dialogs; the
// form only shows the slots.
class MultiIconBuilder {
  public:
    // The file dialogs open in recentFolder; a chosen file's folder becomes
    // the new one, as with the editor's own file commands.
    MultiIconBuilder(UserDialogs& dialogs, QString& recentFolder)
        : dialogs_(dialogs), recentFolder_(recentFolder) {}

    // File > Open: the slot filled, or -1 when none was.
    int open();
    // File > Create: true when the whole file was written.
    bool create();
    // Delete on a slot's pop-up menu.
    void remove(int slot);

    const MultiIconResource& resource() const { return resource_; }
    // What a filled slot shows: its source file as the icon loader decodes
    // it. Empty planes for an empty slot or a file that does not decode.
    const IconLoadResult& icon(int slot) const { return icons_.at(slot); }

    // Why an add filled no slot (empty for Added), with the file's title
    // where the text names it. The limit is told under "Sollent" with the
    // information icon, the others under "Sollent - Error".
    static QString addMessage(MultiIconResource::AddOutcome outcome, const QString& fileTitle);

  private:
    std::optional<FileChoice> chooseFile(FileDialogMode mode);
    void showMessage(MultiIconResource::AddOutcome outcome, const QString& fileTitle);
    void showError(const QString& text);

    UserDialogs& dialogs_;
    QString& recentFolder_;
    MultiIconResource resource_;
    std::array<IconLoadResult, MultiIconResource::kSlotCount> icons_;
};
