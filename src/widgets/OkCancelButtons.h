#pragma once

#include <QRect>

class QPushButton;
class QWidget;

// The "&Ok" (default) and "&Cancel" buttons every small dialog of the program
// has, named CmdOk and CmdCancel.
struct OkCancelButtons {
    QPushButton* ok;
    QPushButton* cancel;
};

OkCancelButtons addOkCancelButtons(QWidget* dialog, const QRect& ok, const QRect& cancel);
