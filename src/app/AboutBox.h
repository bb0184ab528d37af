#pragma once

#include <QDialog>

// The about box: the program's name, version and build.
class AboutBox : public QDialog {
    Q_OBJECT
  public:
    explicit AboutBox(QWidget* parent);

    static QString versionText();
};
