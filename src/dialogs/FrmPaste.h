#pragma once

#include <QDialog>

#include <array>

class QGroupBox;
class QPushButton;
class QRadioButton;

// "Paste Options": asked when the clipboard's picture is larger than the icon.
class FrmPaste : public QDialog {
    Q_OBJECT
  public:
    explicit FrmPaste(QWidget* parent);

    // -1 until Ok: 0 "Shrink To Fit", 1 "Shrink To Fit (Keep Aspect)".
    int PasteChoice() const { return pasteChoice_; }

    static QString message() { return QStringLiteral("The image on the clipboard is too large."); }

    QGroupBox* FraPasteOptions;
    std::array<QRadioButton*, 2> OptPaste{};
    QPushButton* CmdOk;
    QPushButton* CmdCancel;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int pasteChoice_ = -1;
};
