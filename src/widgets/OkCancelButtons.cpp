#include "widgets/OkCancelButtons.h"

#include <QPushButton>

OkCancelButtons addOkCancelButtons(QWidget* dialog, const QRect& ok, const QRect& cancel) {
    auto* okButton = new QPushButton(QStringLiteral("&Ok"), dialog);
    okButton->setObjectName("CmdOk");
    okButton->setGeometry(ok);
    okButton->setDefault(true);
    auto* cancelButton = new QPushButton(QStringLiteral("&Cancel"), dialog);
    cancelButton->setObjectName("CmdCancel");
    cancelButton->setGeometry(cancel);
    return {okButton, cancelButton};
}
