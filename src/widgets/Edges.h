#pragma once

#include <QPalette>
#include <QRect>

class QPainter;

// The 3-D edges of the program's windows, drawn with the style's shades so
// they follow the desktop's colours.
namespace Edges {
// A sunken edge is one pixel wide and lies around the control it frames.
inline QRect sunkenAround(const QRect& control) {
    return control.adjusted(-1, -1, 1, 1);
}

// A sunken outer border inside rect: one pixel of shadow along the top and
// left, one of highlight along the bottom and right.
void sunken(QPainter& painter, const QRect& rect, const QPalette& palette);
// A sunken inner border inside rect: the same lines one shade deeper, dark
// shadow along the top and left and light along the bottom and right. The
// dialogs frame their previews with it.
void sunkenInner(QPainter& painter, const QRect& rect, const QPalette& palette);
// An etched groove, one dark and one light line, inside rect.
void etched(QPainter& painter, const QRect& rect, const QPalette& palette);
// The two-pixel sunken band along the top of a client area.
void topBand(QPainter& painter, int width, const QPalette& palette);
} // namespace Edges
