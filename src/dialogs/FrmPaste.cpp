#include "dialogs/FrmPaste.h"

#include "widgets/OkCancelButtons.h"
#include "widgets/WindowPlacement.h"

#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

FrmPaste::FrmPaste(QWidget* parent) : QDialog(parent) {
    setObjectName("FrmPaste");
    setWindowTitle(QStringLiteral("Paste Options"));
    setFixedSize(330, 124);

    FraPasteOptions = new QGroupBox(QStringLiteral("Please Select An Option"), this);
    FraPasteOptions->setObjectName("FraPasteOptions");
    FraPasteOptions->setGeometry(8, 30, 216, 84);
    const char* captions[] = {"Shrink To Fit", "Shrink To Fit (Keep Aspect)"};
    for (int i = 0; i < 2; ++i) {
        OptPaste[i] = new QRadioButton(QString::fromLatin1(captions[i]), FraPasteOptions);
        OptPaste[i]->setObjectName("OptPaste");
        OptPaste[i]->setProperty("index", i);
        OptPaste[i]->setGeometry(12, 24 + 26 * i, 196, 22);
    }
    OptPaste[0]->setChecked(true);

    const OkCancelButtons buttons =
        addOkCancelButtons(this, QRect(234, 36, 88, 28), QRect(234, 72, 88, 28));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    connect(CmdOk, &QPushButton::clicked, this, [this] {
        pasteChoice_ = OptPaste[0]->isChecked() ? 0 : 1;
        accept();
    });
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    WindowPlacement::place(*this);
}

void FrmPaste::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawText(QRect(8, 6, width() - 16, 20), Qt::AlignLeft | Qt::AlignTop, message());
}
