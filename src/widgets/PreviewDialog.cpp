#include "widgets/PreviewDialog.h"

#include "platform/Raster.h"
#include "widgets/Edges.h"
#include "widgets/PictureBox.h"
#include "widgets/WindowPlacement.h"

#include <QPainter>
#include <QPushButton>
#include <QTimer>

PreviewDialog::PreviewDialog(const QString& name, const QString& caption, const QSize& size,
                             QWidget* parent)
    : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(caption);
    setFixedSize(size);
    WindowPlacement::place(*this);
}

Colour PreviewDialog::previewBackground() const {
    const QColor face = palette().color(QPalette::Button);
    return rgb(face.red(), face.green(), face.blue());
}

PictureBox* PreviewDialog::addPreview(const QString& name, const QRect& frame) {
    auto* box = new PictureBox(name, this);
    previews_.push_back({box, frame});
    return box;
}

OkCancelButtons PreviewDialog::addOkCancel(const QRect& ok, const QRect& cancel) {
    const OkCancelButtons buttons = addOkCancelButtons(this, ok, cancel);
    connect(buttons.ok, &QPushButton::clicked, this, [this] {
        if (!acceptResult()) {
            reject();
            return;
        }
        cancelled_ = false;
        accept();
    });
    connect(buttons.cancel, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

QPushButton* PreviewDialog::addReset(const QRect& rect) {
    auto* button = new QPushButton(QStringLiteral("&Reset"), this);
    button->setObjectName("CmdReset");
    button->setGeometry(rect);
    connect(button, &QPushButton::clicked, this, [this] {
        reset();
        updatePreview();
    });
    return button;
}

void PreviewDialog::updatePreview() {
    scheduled_ = false;
    drawn_ = true;
    for (int i = 0; i < static_cast<int>(previews_.size()); ++i)
        showPreview(i, renderPreview(i));
}

void PreviewDialog::schedulePreview() {
    if (scheduled_)
        return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        if (scheduled_)
            updatePreview();
    });
}

void PreviewDialog::showPreview(int index, const Planes& planes) {
    const int w = planes.colour.width();
    const int h = planes.colour.height();
    Plane shown(w, h, previewBackground());
    drawMasked(shown, 0, 0, planes.mask, planes.colour);
    const Preview& preview = previews_.at(index);
    const QRect& frame = preview.frame;
    preview.box->move(frame.x() + (frame.width() - w) / 2, frame.y() + (frame.height() - h) / 2);
    preview.box->setPlane(shown);
}

void PreviewDialog::showEvent(QShowEvent* event) {
    // The subclass is complete only now, so the first drawing waits for the
    // show unless the subclass asked for one earlier.
    if (!drawn_)
        updatePreview();
    QDialog::showEvent(event);
}

void PreviewDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const Preview& preview : previews_)
        Edges::sunkenInner(painter, preview.frame, palette());
}
