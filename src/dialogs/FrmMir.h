#pragma once

#include "fileio/MultiIconBuilder.h"

#include <QDialog>

#include <array>

class PictureBox;
class QAction;
class QMenu;
class QMenuBar;

// "Create Multi Icon Resource": twelve slots, a row for each depth and a
// column for each size, filled from one-image icon files and written as one
// multi-image icon. The slots live as long as the form. Unlike the other
// dialogs it answers no question of the editor: the main window opens it
// straight from its menu, and it leaves the document alone.
class FrmMir : public QDialog {
    Q_OBJECT
  public:
    // Asks and reports through dialogs; the file dialogs open in
    // recentFolder and leave the chosen file's folder there.
    FrmMir(UserDialogs& dialogs, QString& recentFolder, QWidget* parent);

    const MultiIconBuilder& builder() const { return builder_; }

    QMenuBar* MenuBar;
    QMenu* MnuFile;
    QAction* MnuOpen;
    QAction* MnuCreate;
    QAction* MnuSep;
    QAction* MnuExit;
    // The pop-up of a filled slot, never on the menu bar.
    QMenu* MnuDel;
    QAction* MnuDelete;
    // The slots: index = depth row x 3 + size column.
    std::array<PictureBox*, MultiIconResource::kSlotCount> PicIco{};

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void showSlot(int slot);
    void enableCreate();

    MultiIconBuilder builder_;
    int popUpSlot_ = -1;
};
