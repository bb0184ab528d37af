#pragma once

#include "platform/Plane.h"

#include <QDialog>
#include <QImage>

#include <optional>

class QTimer;

// The capture window: the screen frozen as it was, covering every screen,
// on top of every window and without a frame. The pointer is hidden; an
// outline of the icon's size plus two, its dashes creeping, marks where it
// is, and a left click takes the square inside the outline. Escape or
// closing the window takes nothing; other buttons do nothing.
class FrmSnap : public QDialog {
    Q_OBJECT
  public:
    // screen: the frozen picture, one pixel a screen pixel, shown with its
    // top-left corner at topLeft of the desktop. iconSize: 16, 32 or 48.
    FrmSnap(const QImage& screen, const QPoint& topLeft, int iconSize, QWidget* parent);

    // Every screen as it shows now, laid out as the desktop places them, and
    // that desktop's top-left corner.
    static QImage grabScreens();
    static QPoint desktopTopLeft();

    // The square a left click took (ScreenCapture::squareAt), else nothing.
    const std::optional<Plane>& taken() const { return taken_; }
    // Where the outline's top-left corner is now, in the window's pixels.
    QPoint outlinePosition() const { return QPoint(CurX, CurY); }

    // The icon's size until the window shows, the outline's outer size after.
    int CaptureSize;
    int CurX = 0;
    int CurY = 0;
    QTimer* Tmr;

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void done(int result) override;

  private:
    // Draws the outline of the current phase over the screen at (CurX, CurY)
    // and moves on to the next phase.
    void tick();
    // The pointer's position held in the area the outline may reach.
    QPoint confined(const QPointF& p) const;

    const int iconSize_;
    QImage screen_;
    QImage frames_;  // the four frames of the chosen outline, stacked down
    QImage outline_; // the screen under the outline with the outline drawn
    QPoint outlineAt_;
    int phase_ = 0;
    std::optional<Plane> taken_;
};
