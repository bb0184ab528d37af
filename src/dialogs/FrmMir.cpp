#include "dialogs/FrmMir.h"

#include "platform/Raster.h"
#include "widgets/Edges.h"
#include "widgets/PictureBox.h"
#include "widgets/WindowPlacement.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

namespace {

// Each slot shows its icon at actual size, centred in a picture with room
// around the largest one.
constexpr int kSlotSide = 52;
constexpr int kPitch = 60;
constexpr int kMargin = 12;
constexpr int kCaptionLeft = 12;
constexpr int kSlotsLeft = 92;
constexpr int kSlotsTop = 12;
constexpr int kWidth = kSlotsLeft + 2 * kPitch + kSlotSide + kMargin;

const char* const kRowCaptions[4] = {"Mono", "16 Color", "256 Color", "True Color"};

QAction* addItem(QMenu* menu, const char* name, const char* caption) {
    QAction* action = menu->addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

} // namespace

FrmMir::FrmMir(UserDialogs& dialogs, QString& recentFolder, QWidget* parent)
    : QDialog(parent), builder_(dialogs, recentFolder) {
    setObjectName("FrmMir");
    setWindowTitle(QStringLiteral("Create Multi Icon Resource"));

    MenuBar = new QMenuBar(this);
    MnuFile = MenuBar->addMenu(QStringLiteral("&File"));
    MnuFile->setObjectName("MnuFile");
    MnuOpen = addItem(MnuFile, "MnuOpen", "&Open");
    MnuCreate = addItem(MnuFile, "MnuCreate", "&Create");
    MnuSep = MnuFile->addSeparator();
    MnuSep->setObjectName("MnuSep");
    MnuExit = addItem(MnuFile, "MnuExit", "E&xit");
    MnuDel = new QMenu(QStringLiteral("Del"), this);
    MnuDel->setObjectName("MnuDel");
    MnuDelete = addItem(MnuDel, "MnuDelete", "&Delete");

    const int top = MenuBar->sizeHint().height();
    MenuBar->setGeometry(0, 0, kWidth, top);
    for (int slot = 0; slot < MultiIconResource::kSlotCount; ++slot) {
        auto* picture = new PictureBox(QStringLiteral("PicIco"), this);
        picture->setProperty("index", slot);
        picture->move(kSlotsLeft + slot % 3 * kPitch, top + kSlotsTop + slot / 3 * kPitch);
        connect(picture, &PictureBox::mouseUp, this, [this, slot, picture](int button, QPointF p) {
            // Released over the filled slot it was pressed on.
            if (button == 2 && builder_.resource().isFilled(slot) &&
                picture->rect().contains(p.toPoint())) {
                popUpSlot_ = slot;
                MnuDel->popup(picture->mapToGlobal(p.toPoint()));
            }
        });
        PicIco[slot] = picture;
        showSlot(slot);
    }
    setFixedSize(kWidth, top + kSlotsTop + 3 * kPitch + kSlotSide + kMargin);

    connect(MnuFile, &QMenu::aboutToShow, this, &FrmMir::enableCreate);
    connect(MnuOpen, &QAction::triggered, this, [this] {
        const int slot = builder_.open();
        if (slot >= 0)
            showSlot(slot);
        enableCreate();
    });
    connect(MnuCreate, &QAction::triggered, this, [this] { builder_.create(); });
    connect(MnuExit, &QAction::triggered, this, &QDialog::accept);
    connect(MnuDelete, &QAction::triggered, this, [this] {
        builder_.remove(popUpSlot_);
        showSlot(popUpSlot_);
        enableCreate();
    });
    enableCreate();
    WindowPlacement::place(*this);
}

void FrmMir::showSlot(int slot) {
    if (slot < 0 || slot >= MultiIconResource::kSlotCount)
        return;
    const QColor face = palette().color(QPalette::Button);
    Plane shown(kSlotSide, kSlotSide, rgb(face.red(), face.green(), face.blue()));
    const IconLoadResult& icon = builder_.icon(slot);
    if (icon.ok()) {
        const int at = (kSlotSide - icon.width) / 2;
        drawMasked(shown, at, at, icon.mask, icon.image);
    }
    PicIco[slot]->setPlane(shown);
}

void FrmMir::enableCreate() {
    MnuCreate->setEnabled(builder_.resource().filledCount() > 0);
}

void FrmMir::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int row = 0; row < 4; ++row) {
        const QRect firstSlot = PicIco[row * 3]->geometry();
        painter.drawText(
            QRect(kCaptionLeft, firstSlot.top(), kSlotsLeft - kCaptionLeft, firstSlot.height()),
            Qt::AlignLeft | Qt::AlignVCenter, QString::fromLatin1(kRowCaptions[row]));
    }
    for (PictureBox* picture : PicIco)
        Edges::sunken(painter, Edges::sunkenAround(picture->geometry()), palette());
}
