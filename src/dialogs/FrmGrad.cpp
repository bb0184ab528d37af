#include "dialogs/FrmGrad.h"

#include "widgets/PictureBox.h"
#include "widgets/SpinnerArrows.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QThread>
#include <QTimer>

namespace {

enum Preview { kLinear, kSpherical };
// A rest after each circle of the growing disc, so its 256 circles take about
// half a second and the user sees it grow from the point clicked.
constexpr unsigned long kCircleRestMs = 2;

// A gradient shows as it is: every pixel opaque.
PreviewDialog::Planes opaque(const Plane& picture) {
    return {picture, Plane(picture.width(), picture.height(), kBlack)};
}

std::optional<Colour> askColourDialog(Colour current, QWidget* parent) {
    const QColor chosen =
        QColorDialog::getColor(QColor(redOf(current), greenOf(current), blueOf(current)), parent);
    if (!chosen.isValid())
        return std::nullopt;
    return rgb(chosen.red(), chosen.green(), chosen.blue());
}

} // namespace

FrmGrad::FrmGrad(int size, QWidget* parent)
    : PreviewDialog(QStringLiteral("FrmGrad"), QStringLiteral("Gradient"), QSize(330, 158), parent),
      size_(size), centre_(size / 2, size / 2) {
    chooseColour = [this](Colour current) { return askColourDialog(current, this); };

    // The two frames of 48 pixels inside their sunken edges, the smaller
    // gradient squares centred in them.
    PicLinear = addPreview(QStringLiteral("PicLinear"), QRect(8, 8, 54, 54));
    PicSpherical = addPreview(QStringLiteral("PicSpherical"), QRect(103, 8, 54, 54));
    connect(PicSpherical, &PictureBox::mouseDown, this, [this](int button, QPointF point) {
        if (button != 1)
            return;
        centre_ = QPoint(static_cast<int>(point.x()), static_cast<int>(point.y()));
        growSphere();
    });
    auto* click = new QLabel(QStringLiteral("Click"), this);
    click->setGeometry(161, 27, 30, 15);

    VsbAngle = new QScrollBar(Qt::Vertical, this);
    VsbAngle->setObjectName("VsbAngle");
    VsbAngle->setRange(0, GradientFill::kMaxAngle);
    VsbAngle->setSingleStep(GradientFill::kAngleStep);
    VsbAngle->setPageStep(GradientFill::kAngleStep);
    VsbAngle->setGeometry(74, 12, 16, 28);
    raiseWithUpperArrow(VsbAngle, GradientFill::kAngleStep);
    LblAngle = new QLabel(QStringLiteral("000"), this);
    LblAngle->setObjectName("LblAngle");
    LblAngle->setAlignment(Qt::AlignCenter);
    LblAngle->setGeometry(64, 44, 36, 15);
    VsbAngle->setContextMenuPolicy(Qt::NoContextMenu);
    connect(VsbAngle, &QScrollBar::valueChanged, this, [this](int angle) {
        // Dragging the handle or a touchpad's fine wheel steps can stop
        // between the nine angles; the nearest one is taken.
        const int step = GradientFill::kAngleStep;
        if (angle % step != 0) {
            VsbAngle->setValue((angle + step / 2) / step * step);
            return;
        }
        LblAngle->setText(QStringLiteral("%1").arg(angle, 3, 10, QLatin1Char('0')));
        schedulePreview();
    });

    // "Sperical" is spelt so on purpose: it is the caption users know.
    const char* kinds[] = {"Linear", "Sperical"};
    for (int i = 0; i < 2; ++i) {
        OptGradType[i] = new QRadioButton(QString::fromLatin1(kinds[i]), this);
        OptGradType[i]->setObjectName("OptGradType");
        OptGradType[i]->setProperty("index", i);
        OptGradType[i]->setGeometry(8 + 95 * i, 67, 80, 20);
    }
    OptGradType[0]->setChecked(true);

    Frame1 = new QGroupBox(this);
    Frame1->setObjectName("Frame1");
    Frame1->setGeometry(8, 92, 314, 58);
    auto* startWords = new QLabel(QStringLiteral("Start Color:"), Frame1);
    startWords->setGeometry(10, 10, 78, 17);
    PicStartColor = addColourBox("PicStartColor", 0, QRect(90, 9, 44, 19));
    auto* endWords = new QLabel(QStringLiteral("End Color:"), Frame1);
    endWords->setGeometry(160, 10, 70, 17);
    PicEndColor = addColourBox("PicEndColor", 1, QRect(232, 9, 44, 19));
    auto* hint = new QLabel(QStringLiteral("Click On A Color Box To Choose A New Color."), Frame1);
    hint->setGeometry(10, 34, 294, 17);

    const OkCancelButtons buttons = addOkCancel(QRect(234, 8, 88, 24), QRect(234, 36, 88, 24));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    // On opening the disc grows around the middle, as after a click there.
    QTimer::singleShot(0, this, [this] { growSphere(); });
}

PictureBox* FrmGrad::addColourBox(const char* name, int index, const QRect& rect) {
    auto* edge = new QFrame(Frame1);
    edge->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    edge->setLineWidth(1);
    edge->setGeometry(rect);
    auto* box = new PictureBox(QString::fromLatin1(name), edge);
    box->move(1, 1);
    box->setPlane(Plane(rect.width() - 2, rect.height() - 2, colours_[index]));
    connect(box, &PictureBox::mouseDown, this, [this, index](int button, QPointF) {
        if (button == 1)
            pickColour(index);
    });
    colourBoxes_[index] = box;
    return box;
}

void FrmGrad::pickColour(int index) {
    const std::optional<Colour> chosen = chooseColour(colours_[index]);
    if (!chosen)
        return;
    colours_[index] = *chosen;
    PictureBox* box = colourBoxes_[index];
    box->setPlane(Plane(box->width(), box->height(), *chosen));
    ++spheres_; // a disc still growing would go on in the old colours
    updatePreview();
}

void FrmGrad::growSphere() {
    if (!isVisible())
        return;
    const int sphere = ++spheres_;
    const auto stillGrowing = [this, sphere] { return sphere == spheres_ && isVisible(); };
    GradientFill::spherical(size_, centre_.x(), centre_.y(), ramp(),
                            [this, &stillGrowing](const Plane& drawn) {
                                if (!stillGrowing())
                                    return false;
                                showPreview(kSpherical, opaque(drawn));
                                QCoreApplication::processEvents();
                                QThread::msleep(kCircleRestMs);
                                return stillGrowing();
                            });
}

PreviewDialog::Planes FrmGrad::renderPreview(int index) {
    if (index == kLinear)
        return opaque(GradientFill::linear(size_, VsbAngle->value(), ramp()));
    return opaque(GradientFill::spherical(size_, centre_.x(), centre_.y(), ramp()));
}

bool FrmGrad::acceptResult() {
    // Drawn anew rather than taken from the preview: Ok may come while the
    // disc is still growing, and it takes the finished gradient.
    gradient_ = OptGradType[0]->isChecked()
                    ? GradientFill::linear(size_, VsbAngle->value(), ramp())
                    : GradientFill::spherical(size_, centre_.x(), centre_.y(), ramp());
    return true;
}
