#include "widgets/Edges.h"

#include <QPainter>
#include <qdrawutil.h>

void Edges::sunken(QPainter& painter, const QRect& rect, const QPalette& palette) {
    qDrawShadePanel(&painter, rect, palette, true, 1);
}

void Edges::sunkenInner(QPainter& painter, const QRect& rect, const QPalette& palette) {
    QPalette deeper = palette;
    deeper.setColor(QPalette::Dark, palette.color(QPalette::Shadow));
    deeper.setColor(QPalette::Light, palette.color(QPalette::Midlight));
    qDrawShadePanel(&painter, rect, deeper, true, 1);
}

void Edges::etched(QPainter& painter, const QRect& rect, const QPalette& palette) {
    qDrawShadeRect(&painter, rect, palette, true, 1, 0);
}

void Edges::topBand(QPainter& painter, int width, const QPalette& palette) {
    sunken(painter, QRect(0, 0, width, 2), palette);
}
