#include "app/ClientArea.h"

#include "app/MainLayout.h"
#include "widgets/Edges.h"
#include "widgets/ToolIcons.h"

#include <QPainter>

using namespace MainLayout;

ClientArea::ClientArea(QWidget* parent) : QWidget(parent) {
    setObjectName("ClientArea");
}

void ClientArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette& pal = palette();
    Edges::topBand(painter, width(), pal);
    Edges::sunken(painter, Edges::sunkenAround(QRect(kCanvas, QSize(385, 385))), pal);
    Edges::sunken(painter, kPreviewBox, pal);
    Edges::sunken(painter, kReadoutXYBox, pal);
    Edges::sunken(painter, kReadoutToXYBox, pal);
    Edges::sunken(painter, Edges::sunkenAround(QRect(kPal, QSize(51, 335))), pal);
    Edges::sunken(painter, Edges::sunkenAround(QRect(kMiniPal, QSize(96, 52))), pal);
    Edges::sunken(painter, Edges::sunkenAround(QRect(kGreyPal, QSize(92, 32))), pal);
    for (const QPoint& swatch : {kScreen, kLeft, kRight})
        Edges::sunken(painter, Edges::sunkenAround(QRect(swatch, kSwatch)), pal);
    for (int tool = 0; tool < ToolIcons::kToolCount; ++tool)
        Edges::etched(painter, toolCell(tool), pal);
}
