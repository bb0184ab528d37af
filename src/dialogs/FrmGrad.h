#pragma once

#include "operations/GradientFill.h"
#include "widgets/PreviewDialog.h"

#include <QPoint>

#include <array>
#include <functional>
#include <optional>

class QGroupBox;
class QLabel;
class QRadioButton;
class QScrollBar;

// "Gradient": a start and an end colour, a linear gradient at one of nine
// angles and a spherical one around the point last clicked, each previewed
// at icon size. Ok keeps the chosen kind's picture for the command to put
// under the icon's transparent pixels.
class FrmGrad : public PreviewDialog {
    Q_OBJECT
  public:
    // size is the icon's: 16, 32 or 48.
    FrmGrad(int size, QWidget* parent);

    // What a click on a colour box asks: the colour dialog, opened at the
    // box's colour; nothing when the user cancels it. A test puts its own
    // answer here.
    std::function<std::optional<Colour>(Colour current)> chooseColour;

    // The picture Ok kept (valid once cancelled() is false).
    const Plane& gradient() const { return gradient_; }
    Colour startColour() const { return colours_[0]; }
    Colour endColour() const { return colours_[1]; }
    QPoint centre() const { return centre_; }

    QGroupBox* Frame1;
    PictureBox* PicStartColor;
    PictureBox* PicEndColor;
    std::array<QRadioButton*, 2> OptGradType{};
    PictureBox* PicLinear;
    PictureBox* PicSpherical;
    QScrollBar* VsbAngle;
    QLabel* LblAngle;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;

  protected:
    Planes renderPreview(int index) override;
    bool acceptResult() override;

  private:
    PictureBox* addColourBox(const char* name, int index, const QRect& rect);
    void pickColour(int index);
    // Draws the spherical preview around centre_ circle by circle, letting
    // the window redraw between circles, so the disc visibly grows.
    void growSphere();
    GradientFill::Ramp ramp() const { return {colours_[0], colours_[1]}; }

    int size_;
    std::array<Colour, 2> colours_{kBlack, kWhite};
    std::array<PictureBox*, 2> colourBoxes_{};
    QPoint centre_;
    // Counts the spheres begun: a click while one grows starts another, and
    // the older one stops.
    int spheres_ = 0;
    Plane gradient_;
};
