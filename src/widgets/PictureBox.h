#pragma once

#include "platform/Plane.h"

#include <QImage>
#include <QPointF>
#include <QWidget>

// A picture control: shows a plane the core composed, 1:1, and hands the
// mouse back in the picture's own pixels. Buttons are numbered as the core
// counts them: 1 left, 2 right; a move reports the buttons held as a sum
// (0 when none). Other buttons are not reported.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    PictureBox(const QString& name, QWidget* parent);

    // Shows the plane, sized to it; only the part that changed is repainted.
    void setPlane(const Plane& plane);
    const QImage& image() const { return image_; }

    // While a button is down, points outside the picture are reported at its
    // nearest edge and the pointer is held inside it.
    void setConfined(bool confined) { confined_ = confined; }

    // A picture of square cells `cell` pixels wide (the canvas at its zoom).
    // At a screen scale that makes a cell a whole number of device pixels,
    // every cell is drawn the same width: its first row and column (the grid
    // line) as a whole pixel scaled, the rest shared evenly. 0, or any other
    // scale, draws the picture as Qt scales any image.
    void setCellSize(int cell);

    static int buttonNumber(Qt::MouseButton button);
    static int buttonSum(Qt::MouseButtons buttons);

  signals:
    void mouseDown(int button, QPointF point);
    void mouseMove(int buttons, QPointF point);
    void mouseUp(int button, QPointF point);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QPointF pointOf(const QMouseEvent* event, bool buttonHeld) const;

    const QImage& deviceImage(qreal scale);

    QImage image_;
    bool confined_ = false;
    int cell_ = 0;
    QImage deviceImage_; // image_ laid out cell by cell at the screen's scale
    qreal deviceScale_ = 0;
};
