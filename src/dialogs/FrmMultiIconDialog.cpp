#include "dialogs/FrmMultiIconDialog.h"

#include "widgets/OkCancelButtons.h"
#include "widgets/WindowPlacement.h"

#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

// The lines line up in columns only in a fixed-pitch font: Courier New where
// it is installed, else the system's own fixed font.
QFont listFont() {
    if (QFontDatabase::families().contains(QStringLiteral("Courier New")))
        return QFont(QStringLiteral("Courier New"));
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

} // namespace

FrmMultiIconDialog::FrmMultiIconDialog(const QStringList& lines, QWidget* parent)
    : QDialog(parent) {
    setObjectName("FrmMultiIconDialog");
    setWindowTitle(QStringLiteral("Multi Icon Resource"));
    setFixedSize(211, 213); // 3165 x 3195 twips

    LblMessage = new QLabel(QStringLiteral("This File Contains More Than One Icon. Please Select "
                                           "The One You Would Like To Edit And Click Ok."),
                            this);
    LblMessage->setObjectName("LblMessage");
    LblMessage->setWordWrap(true);
    LblMessage->setGeometry(8, 4, 195, 64);

    LstIcons = new QListWidget(this);
    LstIcons->setObjectName("LstIcons");
    LstIcons->setFont(listFont());
    LstIcons->setGeometry(8, 70, 195, 102);
    LstIcons->addItems(lines);
    if (LstIcons->count() > 0)
        LstIcons->setCurrentRow(0);

    const OkCancelButtons buttons =
        addOkCancelButtons(this, QRect(8, 178, 94, 28), QRect(109, 178, 94, 28));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    connect(CmdOk, &QPushButton::clicked, this, &FrmMultiIconDialog::choose);
    connect(LstIcons, &QListWidget::itemDoubleClicked, this, &FrmMultiIconDialog::choose);
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    WindowPlacement::place(*this);
}

void FrmMultiIconDialog::choose() {
    chosen_ = LstIcons->currentRow();
    accept();
}
