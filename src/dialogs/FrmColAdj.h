#pragma once

#include "operations/ColourAdjustment.h"
#include "widgets/PreviewDialog.h"

#include <array>

class QLabel;
class QScrollBar;

// "Color Adjustment": four spinners (brightness, red, green, blue) stepping
// by 5 between -255 and 255, each with its value beside it, and the icon at
// actual size as the steps change it. Every change goes to the adjustment,
// which keeps the colours; the dialog only shows them.
class FrmColAdj : public PreviewDialog {
    Q_OBJECT
  public:
    FrmColAdj(ColourAdjustment& adjustment, QWidget* parent);

    QScrollBar* VsbBrightness;
    QScrollBar* VsbRed;
    QScrollBar* VsbGreen;
    QScrollBar* VsbBlue;
    QLabel* LblBrightness;
    QLabel* LblRed;
    QLabel* LblGreen;
    QLabel* LblBlue;
    PictureBox* PicShade;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;
    QPushButton* CmdReset;

  protected:
    Planes renderPreview(int index) override;
    void reset() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    // The spinner of one row (0 at the top) and the label showing its value.
    QScrollBar* addSpinner(ColourAdjustment::Spinner spinner, const char* name, QLabel*& label);

    ColourAdjustment& adjustment_;
    std::array<QScrollBar*, 4> spinners_{};
};
