#pragma once

#include "fileio/FileDialogs.h"
#include "fileio/IconBrowser.h"

#include <QDialog>

class PictureBox;
class QLabel;
class QPushButton;
class QScrollBar;
class UserDialogs;

// The icon extraction browser: the icons of an executable, library, icon
// library or animated cursor in a grid, one of them chosen with a click.
class FrmIcons : public QDialog {
    Q_OBJECT
  public:
    // Opens on startFile. Browse asks dialogs for another file, starting in
    // recentFolder, and tells through dialogs when one holds no icons.
    FrmIcons(const QString& startFile, UserDialogs& dialogs, QString& recentFolder,
             QWidget* parent);

    // Raised when the dialog loads, lowered only by Ok.
    bool cancelled() const { return cancelled_; }
    ExtractedIconChoice choice() const { return {browser_.IconFile, browser_.SelectedIcon}; }
    const IconBrowser& browser() const { return browser_; }

    PictureBox* PicIcons;
    QScrollBar* Vsb;
    QLabel* LblInfo;
    QPushButton* CmdBrowse;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void browse();
    void drawGrid();
    // PicIcons shows the five rows the scroll bar has moved to.
    void showVisibleRows();

    UserDialogs& dialogs_;
    QString& recentFolder_;
    IconBrowser browser_;
    bool cancelled_ = true;
};
