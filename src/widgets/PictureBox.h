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

    // While a button is down, points are held inside the picture, as if the
    // pointer were confined to it (the pickers).
    // While a button is down, points outside the picture are reported at its
    // nearest edge and the pointer is held inside it.
    void setConfined(bool confined) { confined_ = confined; }

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

    QImage image_;
    bool confined_ = false;
};
