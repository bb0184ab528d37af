#include "widgets/PictureBox.h"

#include "widgets/PlaneImage.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The smallest rectangle holding every pixel in which the two images of equal
// size differ; empty when they are the same.
QRect changedArea(const QImage& before, const QImage& after) {
    int left = after.width(), right = -1, top = after.height(), bottom = -1;
    for (int y = 0; y < after.height(); ++y) {
        const auto* a = reinterpret_cast<const QRgb*>(before.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(after.constScanLine(y));
        for (int x = 0; x < after.width(); ++x) {
            if (a[x] == b[x])
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

// Where each device pixel along an axis of `logical` pixels samples, for
// cells `cell` pixels wide that take `span` device pixels: the cell's first
// pixel takes `line` of them, the others share the rest evenly.
std::vector<int> cellSamples(int logical, int cell, int span, int line) {
    const int device = static_cast<int>(std::ceil(logical * double(span) / cell));
    std::vector<int> samples(static_cast<std::size_t>(device));
    for (int d = 0; d < device; ++d) {
        const int offset = d % span;
        // Sampled at the device pixel's centre, so the pixels that must take
        // two device pixels fall inside the cell, not beside its grid line.
        const int inCell =
            offset < line ? 0 : 1 + (2 * (offset - line) + 1) * (cell - 1) / (2 * (span - line));
        samples[static_cast<std::size_t>(d)] = std::min(d / span * cell + inCell, logical - 1);
    }
    return samples;
}

} // namespace

PictureBox::PictureBox(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::setPlane(const Plane& plane) {
    QImage next = PlaneImage::toImage(plane);
    if (next.size() != image_.size()) {
        image_ = std::move(next);
        deviceScale_ = 0;
        setFixedSize(image_.size());
        update();
        return;
    }
    const QRect changed = changedArea(image_, next);
    image_ = std::move(next);
    deviceScale_ = 0;
    if (!changed.isNull())
        update(changed);
}

int PictureBox::buttonNumber(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    default:
        return 0;
    }
}

int PictureBox::buttonSum(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0);
}

void PictureBox::setCellSize(int cell) {
    if (cell == cell_)
        return;
    cell_ = cell;
    deviceScale_ = 0;
    update();
}

const QImage& PictureBox::deviceImage(qreal scale) {
    if (scale == deviceScale_)
        return deviceImage_;
    const int span = qRound(cell_ * scale);
    const int line = std::max(1, static_cast<int>(scale));
    const std::vector<int> xs = cellSamples(image_.width(), cell_, span, line);
    const std::vector<int> ys = cellSamples(image_.height(), cell_, span, line);
    deviceImage_ =
        QImage(static_cast<int>(xs.size()), static_cast<int>(ys.size()), QImage::Format_RGB32);
    for (std::size_t y = 0; y < ys.size(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(deviceImage_.scanLine(static_cast<int>(y)));
        const auto* source = reinterpret_cast<const QRgb*>(image_.constScanLine(ys[y]));
        for (std::size_t x = 0; x < xs.size(); ++x)
            row[x] = source[xs[x]];
    }
    deviceImage_.setDevicePixelRatio(scale);
    deviceScale_ = scale;
    return deviceImage_;
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const qreal scale = devicePixelRatioF();
    const qreal span = cell_ * scale;
    if (cell_ > 1 && scale != 1.0 && std::abs(span - std::round(span)) < 1e-9) {
        painter.drawImage(QPointF(0, 0), deviceImage(scale));
        return;
    }
    painter.drawImage(event->rect(), image_, event->rect());
}

QPointF PictureBox::pointOf(const QMouseEvent* event, bool buttonHeld) const {
    QPointF p = event->position();
    if (confined_ && buttonHeld) {
        p.setX(std::clamp(p.x(), 0.0, static_cast<double>(width() - 1)));
        p.setY(std::clamp(p.y(), 0.0, static_cast<double>(height() - 1)));
    }
    return p;
}

// Qt keeps sending the mouse to the picture the button went down on until the
// last button is released, so a drag that leaves the picture still arrives
// here: the capture the canvas and the pickers rely on.
void PictureBox::mousePressEvent(QMouseEvent* event) {
    const int button = buttonNumber(event->button());
    if (button != 0)
        emit mouseDown(button, pointOf(event, true));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const int buttons = buttonSum(event->buttons());
    const QPointF point = pointOf(event, buttons != 0);
    // A confined picture holds the real pointer inside itself while a button
    // is down, as the system's cursor clipping would, not only the points it
    // reports.
    if (point != event->position())
        QCursor::setPos(screen(), mapToGlobal(point.toPoint()));
    emit mouseMove(buttons, point);
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    const int button = buttonNumber(event->button());
    if (button == 0)
        return;
    emit mouseUp(button, pointOf(event, true));
}
