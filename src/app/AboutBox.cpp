#include "app/AboutBox.h"

#include "widgets/WindowPlacement.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#ifndef BREVIK_VERSION
#define BREVIK_VERSION "unknown"
#endif
#ifndef BREVIK_BUILD_TYPE
#define BREVIK_BUILD_TYPE ""
#endif

QString AboutBox::versionText() {
    return QStringLiteral("Version %1 (%2 build, Qt %3)")
        .arg(QStringLiteral(BREVIK_VERSION), QStringLiteral(BREVIK_BUILD_TYPE),
             QString::fromLatin1(qVersion()));
}

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setObjectName("AboutBox");
    setWindowTitle(QStringLiteral("About Brevik"));
    auto* layout = new QVBoxLayout(this);
    auto* name = new QLabel(QStringLiteral("<b>Brevik</b>"), this);
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    name->setFont(big);
    layout->addWidget(name);
    layout->addWidget(new QLabel(QStringLiteral("An editor for small icons and cursors."), this));
    auto* version = new QLabel(versionText(), this);
    version->setObjectName("LblVersion");
    layout->addWidget(version);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();
    WindowPlacement::place(*this);
}
