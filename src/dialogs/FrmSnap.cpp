#include "dialogs/FrmSnap.h"

#include "operations/CaptureFrames.h"
#include "operations/ScreenCapture.h"
#include "widgets/PlaneImage.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

FrmSnap::FrmSnap(const QImage& screen, const QPoint& topLeft, int iconSize, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      CaptureSize(iconSize), iconSize_(iconSize),
      screen_(screen.convertToFormat(QImage::Format_RGB32)) {
    setObjectName("FrmSnap");
    setGeometry(QRect(topLeft, screen_.size()));
    setCursor(Qt::BlankCursor);
    setMouseTracking(true);
    Tmr = new QTimer(this);
    Tmr->setObjectName("Tmr");
    Tmr->setInterval(50);
    connect(Tmr, &QTimer::timeout, this, &FrmSnap::tick);
}

QImage FrmSnap::grabScreens() {
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    QImage picture(desktop.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    // A grab holds device pixels; drawn into the screen's place on the
    // desktop it comes back to one pixel a window pixel.
    for (QScreen* screen : QGuiApplication::screens())
        painter.drawPixmap(screen->geometry().translated(-desktop.topLeft()),
                           screen->grabWindow(0));
    return picture;
}

QPoint FrmSnap::desktopTopLeft() {
    return QGuiApplication::primaryScreen()->virtualGeometry().topLeft();
}

QPoint FrmSnap::confined(const QPointF& p) const {
    // Qt cannot hold the pointer inside a rectangle, so the outline is held
    // there instead: the pointer is hidden and the outline stops at the edge
    // of the area while the pointer runs on.
    return ScreenCapture::confined(p.toPoint(),
                                   ScreenCapture::confinement(screen_.size(), iconSize_));
}

void FrmSnap::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (Tmr->isActive())
        return;
    const QPoint start = confined(mapFromGlobal(QCursor::pos()));
    CurX = start.x();
    CurY = start.y();
    frames_ = PlaneImage::toImage(CaptureFrames::picture(CaptureSize + 2));
    CaptureSize += 2;
    Tmr->start();
}

void FrmSnap::tick() {
    const int s = CaptureSize;
    const QRect before(outlineAt_, outline_.size());
    outlineAt_ = QPoint(CurX, CurY);
    outline_ = screen_.copy(QRect(outlineAt_, QSize(s, s)));
    // No outline for a size that has no frames: the window only shows the
    // screen then.
    if (!frames_.isNull())
        for (int y = 0; y < s; ++y) {
            auto* shown = reinterpret_cast<QRgb*>(outline_.scanLine(y));
            const auto* mask = reinterpret_cast<const QRgb*>(frames_.constScanLine(phase_ * s + y));
            const QRgb* image = mask + s;
            for (int x = 0; x < s; ++x)
                shown[x] = ((shown[x] & mask[x]) ^ (image[x] & 0xFFFFFF)) | 0xFF000000;
        }
    phase_ = (phase_ + 1) % CaptureFrames::kPhases;
    update(before);
    update(QRect(outlineAt_, outline_.size()));
}

void FrmSnap::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect area = event->rect();
    painter.drawImage(area, screen_, area);
    if (!outline_.isNull())
        painter.drawImage(outlineAt_, outline_);
}

void FrmSnap::mouseMoveEvent(QMouseEvent* event) {
    const QPoint p = confined(event->position());
    CurX = p.x();
    CurY = p.y();
}

void FrmSnap::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    taken_ = ScreenCapture::squareAt(PlaneImage::toPlane(screen_), confined(event->position()),
                                     CaptureSize);
    accept();
}

void FrmSnap::done(int result) {
    Tmr->stop();
    QDialog::done(result);
}
