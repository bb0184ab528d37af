#include "dialogs/FrmHotSpot.h"

#include "platform/Raster.h"
#include "widgets/Edges.h"
#include "widgets/OkCancelButtons.h"
#include "widgets/PictureBox.h"
#include "widgets/ToolIcons.h"
#include "widgets/WindowPlacement.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int kBlock = 385;
const QRect kHotXCaption(406, 12, 44, 20);
const QRect kHotYCaption(406, 38, 44, 20);
const QRect kReadout(428, 64, 70, 18);

QLabel* hotLabel(QWidget* parent, const char* name, int y) {
    auto* label = new QLabel(QStringLiteral("00"), parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setGeometry(452, y, 40, 20);
    return label;
}

} // namespace

FrmHotSpot::FrmHotSpot(const Plane& canvas, int zoom, int maxIndex, QWidget* parent)
    : QDialog(parent), picker_(zoom, maxIndex) {
    setObjectName("FrmHotSpot");
    setWindowTitle(QStringLiteral("Select Hot Spot"));
    setFixedSize(502, 405);

    PicCursor = new PictureBox(QStringLiteral("PicCursor"), this);
    PicCursor->move(10, 10);
    Plane block(kBlock, kBlock, kWhite);
    bitBlt(block, 0, 0, kBlock, kBlock, canvas, 0, 0, RasterOp::Copy);
    PicCursor->setPlane(block);
    PicCursor->setMouseTracking(true);

    LblHotX = hotLabel(this, "LblHotX", kHotXCaption.y());
    LblHotY = hotLabel(this, "LblHotY", kHotYCaption.y());
    ImgXY = new QLabel(this);
    ImgXY->setObjectName("ImgXY");
    ImgXY->setPixmap(ToolIcons::pointerImage());
    ImgXY->setGeometry(408, 66, 12, 12);

    const OkCancelButtons buttons =
        addOkCancelButtons(this, QRect(406, 330, 88, 28), QRect(406, 366, 88, 28));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    connect(PicCursor, &PictureBox::mouseDown, this, [this](int button, QPointF p) {
        picker_.mouseDown(button, p.x(), p.y());
        LblHotX->setText(picker_.hotXText());
        LblHotY->setText(picker_.hotYText());
    });
    connect(PicCursor, &PictureBox::mouseMove, this, [this](int, QPointF p) {
        readout_ = picker_.readout(p.x(), p.y());
        update(kReadout);
    });
    connect(CmdOk, &QPushButton::clicked, this, [this] {
        cancelled_ = false;
        accept();
    });
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    WindowPlacement::place(*this);
}

void FrmHotSpot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Edges::sunken(painter, Edges::sunkenAround(PicCursor->geometry()), palette());
    Edges::sunken(painter, Edges::sunkenAround(ImgXY->geometry()), palette());
    const auto left = Qt::AlignLeft | Qt::AlignVCenter;
    painter.drawText(kHotXCaption, left, QStringLiteral("Hot X:"));
    painter.drawText(kHotYCaption, left, QStringLiteral("Hot Y:"));
    painter.drawText(kReadout, left, readout_);
}
