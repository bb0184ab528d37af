#include "app/QtClipboard.h"

#include "widgets/PlaneImage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool QtClipboard::hasImage() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

Plane QtClipboard::image() const {
    return PlaneImage::toPlane(QGuiApplication::clipboard()->image());
}

void QtClipboard::setImage(const Plane& picture) {
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setImage(PlaneImage::toImage(picture));
}
