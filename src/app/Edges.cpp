#include "app/Edges.h"

#include <QPainter>
#include <qdrawutil.h>

void Edges::sunken(QPainter& painter, const QRect& rect, const QPalette& palette) {
    qDrawWinPanel(&painter, rect, palette, true);
}

void Edges::etched(QPainter& painter, const QRect& rect, const QPalette& palette) {
    qDrawShadeRect(&painter, rect, palette, true, 1, 0);
}

void Edges::topBand(QPainter& painter, int width, const QPalette& palette) {
    qDrawShadeLine(&painter, 0, 1, width, 1, palette, true, 1, 0);
}
