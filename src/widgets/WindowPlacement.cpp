#include "widgets/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QPoint WindowPlacement::topLeft(const QSize& screen, const QSize& window) {
    return {(screen.width() - window.width()) / 2, (screen.height() - window.height()) / 3};
}

void WindowPlacement::place(QWidget& window) {
    QScreen* screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->geometry();
    window.move(area.topLeft() + topLeft(area.size(), window.size()));
}
