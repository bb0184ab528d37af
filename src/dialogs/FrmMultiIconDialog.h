#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

// "Multi Icon Resource": picks one image of an icon file that holds several.
class FrmMultiIconDialog : public QDialog {
    Q_OBJECT
  public:
    FrmMultiIconDialog(const QStringList& lines, QWidget* parent);

    // The chosen line, or -1 when the dialog was cancelled.
    int chosenLine() const { return chosen_; }

    QLabel* LblMessage;
    QListWidget* LstIcons;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;

  private:
    void choose();

    int chosen_ = -1;
};
