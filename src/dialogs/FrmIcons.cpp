#include "dialogs/FrmIcons.h"

#include "platform/UserDialogs.h"
#include "widgets/Edges.h"
#include "widgets/OkCancelButtons.h"
#include "widgets/PictureBox.h"
#include "widgets/WindowPlacement.h"

#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {

const QPoint kGrid(12, 12);
constexpr int kScrollBarWidth = 17;

} // namespace

FrmIcons::FrmIcons(const QString& startFile, UserDialogs& dialogs, QString& recentFolder,
                   QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), recentFolder_(recentFolder) {
    setObjectName("FrmIcons");
    setFixedSize(423, 276);

    PicIcons = new PictureBox(QStringLiteral("PicIcons"), this);
    PicIcons->move(kGrid);
    // The scroll bar stands against the grid's right edge, frame included.
    Vsb = new QScrollBar(Qt::Vertical, this);
    Vsb->setObjectName("Vsb");
    Vsb->setGeometry(kGrid.x() + IconBrowser::kWidth + 1, kGrid.y() - 1, kScrollBarWidth,
                     IconBrowser::kViewHeight + 2);
    // One click moves a row, a page moves the five rows in view.
    Vsb->setSingleStep(IconBrowser::kPitch);
    Vsb->setPageStep(IconBrowser::kViewHeight);

    LblInfo = new QLabel(this);
    LblInfo->setObjectName("LblInfo");
    LblInfo->setGeometry(kGrid.x(), 210, IconBrowser::kWidth, 20);

    CmdBrowse = new QPushButton(QStringLiteral("&Browse"), this);
    CmdBrowse->setObjectName("CmdBrowse");
    CmdBrowse->setGeometry(kGrid.x(), 236, 88, 28);
    const OkCancelButtons buttons =
        addOkCancelButtons(this, QRect(229, 236, 88, 28), QRect(323, 236, 88, 28));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    connect(Vsb, &QScrollBar::valueChanged, this, &FrmIcons::showVisibleRows);
    connect(PicIcons, &PictureBox::mouseUp, this, [this](int, QPointF p) {
        const int x = static_cast<int>(std::floor(p.x()));
        const int y = static_cast<int>(std::floor(p.y()));
        // Outside the visible rows the point is outside the picture too.
        if (y < 0 || y >= IconBrowser::kViewHeight || !browser_.select(x, y + Vsb->value()))
            return;
        LblInfo->setText(browser_.info());
        showVisibleRows();
    });
    connect(CmdBrowse, &QPushButton::clicked, this, &FrmIcons::browse);
    connect(CmdOk, &QPushButton::clicked, this, [this] {
        cancelled_ = false;
        accept();
    });
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    browser_.open(startFile);
    setWindowTitle(browser_.title());
    LblInfo->setText(browser_.info());
    drawGrid();
    WindowPlacement::place(*this);
}

void FrmIcons::browse() {
    const std::optional<FileChoice> file =
        dialogs_.chooseFile(FileDialogMode::Extract, recentFolder_);
    if (!file)
        return;
    recentFolder_ = QFileInfo(file->path).absolutePath();
    if (!browser_.open(file->path)) {
        dialogs_.showMessage(QStringLiteral("Sollent"),
                             file->title + QStringLiteral(" contains no icons."),
                             MessageIcon::Exclamation);
        return;
    }
    setWindowTitle(browser_.title());
    LblInfo->setText(browser_.info());
    drawGrid();
}

void FrmIcons::drawGrid() {
    // Disabled, the bar keeps a range of 0 and the grid shows from its top.
    const QSignalBlocker quiet(Vsb);
    const bool scrolls = browser_.scrollEnabled();
    Vsb->setEnabled(scrolls);
    Vsb->setRange(0, scrolls ? browser_.scrollMaximum() : 0);
    Vsb->setValue(0);
    // Only a browser that found no start file is without an icon to take.
    CmdOk->setEnabled(browser_.IconCount > 0);
    showVisibleRows();
}

void FrmIcons::showVisibleRows() {
    PicIcons->setPlane(browser_.band(Vsb->value(), IconBrowser::kViewHeight));
}

void FrmIcons::wheelEvent(QWheelEvent* event) {
    // The wheel over the grid scrolls it a row a notch, as over the bar; a
    // touchpad's finer steps scroll by as many pixels as their part of one.
    if (Vsb->isEnabled())
        Vsb->setValue(Vsb->value() - event->angleDelta().y() * IconBrowser::kPitch / 120);
    event->accept();
}

void FrmIcons::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Edges::sunken(painter, Edges::sunkenAround(PicIcons->geometry()), palette());
}
