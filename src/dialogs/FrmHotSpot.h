#pragma once

#include "fileio/HotSpotPicker.h"

#include <QDialog>

class PictureBox;
class QLabel;
class QPushButton;

// "Select Hot Spot": the user clicks the pixel of the zoomed icon that becomes
// the cursor's hot spot.
class FrmHotSpot : public QDialog {
    Q_OBJECT
  public:
    // canvas: the main window's zoomed canvas, shown from its top-left corner.
    FrmHotSpot(const Plane& canvas, int zoom, int maxIndex, QWidget* parent);

    // Raised when the dialog loads, lowered only by Ok.
    bool cancelled() const { return cancelled_; }
    HotSpot hotSpot() const { return picker_.hotSpot(); }
    // The live position read-out the dialog prints beside ImgXY.
    const QString& readoutText() const { return readout_; }

    PictureBox* PicCursor;
    QLabel* LblHotX;
    QLabel* LblHotY;
    QLabel* ImgXY;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    HotSpotPicker picker_;
    bool cancelled_ = true;
    QString readout_;
};
