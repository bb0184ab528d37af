#include "MainWindowFixture.h"

#include "app/PictureBox.h"

#include <QApplication>

MainWindowFixture::MainWindowFixture() {
    window = std::make_unique<frmMain>(&dialogs, &clipboard);
    editor().registry = ModRegistry(folder.filePath(QStringLiteral("store.ini")));
}

MainWindowFixture::~MainWindowFixture() {
    window.reset();
}

void MainWindowFixture::start(const QString& commandLine) {
    window->startUp(commandLine);
}

void MainWindowFixture::activate() {
    window->activateWindow();
    QApplication::processEvents();
    ASSERT_TRUE(window->isActiveWindow());
}

QImage MainWindowFixture::canvasOnScreen() const {
    return window->PicMain->grab().toImage();
}
QImage MainWindowFixture::previewOnScreen() const {
    return window->PicIcon->grab().toImage();
}

QAction* MainWindowFixture::element(const char* name, int index) const {
    return MainMenus::element(window.get(), QString::fromLatin1(name), index);
}

Colour colourAt(const QImage& image, int x, int y) {
    const QRgb p = image.pixel(x, y);
    return rgb(qRed(p), qGreen(p), qBlue(p));
}
