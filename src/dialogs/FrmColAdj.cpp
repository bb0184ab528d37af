#include "dialogs/FrmColAdj.h"

#include "widgets/SpinnerArrows.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr int kRowTop = 10;
constexpr int kRowPitch = 20;
// The words, spinners and values share the 123 pixels left of the preview's
// frame: room for "Brightness:" and "-255" in the usual dialog font.
constexpr int kWordsLeft = 6;
constexpr int kSpinnerLeft = 78;
constexpr QSize kSpinner(16, 13);
constexpr int kLabelLeft = 96;
constexpr int kLabelWidth = 27;
constexpr int kRange = 255;
const char* const kWords[] = {"Brightness:", "Red:", "Green:", "Blue:"};

} // namespace

FrmColAdj::FrmColAdj(ColourAdjustment& adjustment, QWidget* parent)
    : PreviewDialog(QStringLiteral("FrmColAdj"), QStringLiteral("Color Adjustment"), QSize(290, 96),
                    parent),
      adjustment_(adjustment) {
    VsbBrightness = addSpinner(ColourAdjustment::Brightness, "VsbBrightness", LblBrightness);
    VsbRed = addSpinner(ColourAdjustment::Red, "VsbRed", LblRed);
    VsbGreen = addSpinner(ColourAdjustment::Green, "VsbGreen", LblGreen);
    VsbBlue = addSpinner(ColourAdjustment::Blue, "VsbBlue", LblBlue);
    // The frame (123, 8)-(177, 62) centres the preview on (150, 35).
    PicShade = addPreview(QStringLiteral("PicShade"), QRect(123, 8, 54, 54));
    const OkCancelButtons buttons = addOkCancel(QRect(194, 8, 88, 24), QRect(194, 36, 88, 24));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;
    CmdReset = addReset(QRect(194, 64, 88, 24));
}

QScrollBar* FrmColAdj::addSpinner(ColourAdjustment::Spinner spinner, const char* name,
                                  QLabel*& label) {
    const int top = kRowTop + kRowPitch * spinner;
    auto* bar = new QScrollBar(Qt::Vertical, this);
    bar->setObjectName(QString::fromLatin1(name));
    bar->setRange(-kRange, kRange);
    bar->setSingleStep(ColourAdjustment::kStep);
    bar->setPageStep(ColourAdjustment::kStep);
    bar->setValue(0);
    bar->setGeometry(QRect(QPoint(kSpinnerLeft, top), kSpinner));
    raiseWithUpperArrow(bar, ColourAdjustment::kStep);
    label = new QLabel(QStringLiteral("0"), this);
    label->setObjectName(QString::fromLatin1(name).replace(0, 3, QStringLiteral("Lbl")));
    label->setGeometry(kLabelLeft, top - 1, kLabelWidth, 15);
    QLabel* shown = label;
    connect(bar, &QScrollBar::valueChanged, this, [this, spinner, shown](int value) {
        shown->setText(QString::number(value));
        adjustment_.spin(spinner, value);
        schedulePreview();
    });
    spinners_[spinner] = bar;
    return bar;
}

PreviewDialog::Planes FrmColAdj::renderPreview(int) {
    return {adjustment_.shadeImage(), adjustment_.shadeMask()};
}

void FrmColAdj::reset() {
    adjustment_.reset();
    // The adjustment has forgotten the last values already, so these changes
    // step nothing; they only bring the spinners and labels back to 0.
    for (QScrollBar* bar : spinners_)
        bar->setValue(0);
}

void FrmColAdj::paintEvent(QPaintEvent* event) {
    PreviewDialog::paintEvent(event);
    QPainter painter(this);
    for (int row = 0; row < 4; ++row)
        painter.drawText(
            QRect(kWordsLeft, kRowTop + kRowPitch * row - 1, kSpinnerLeft - kWordsLeft, 15),
            Qt::AlignLeft | Qt::AlignVCenter, QString::fromLatin1(kWords[row]));
}
