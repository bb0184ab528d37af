#pragma once

#include "platform/Plane.h"

#include <QPoint>
#include <QRect>
#include <QSize>

// The arithmetic of Effects > Capture. The capture window shows the frozen
// screen with a square outline of outer size iconSize + 2 whose top-left
// corner follows the pointer; a left click takes the square inside the
// outline. Coordinates are the screen picture's pixels.
namespace ScreenCapture {
// The pointer positions allowed while the window is open, both corners
// included: as far right and down as keeps the whole outline on the screen.
QRect confinement(QSize screen, int iconSize);
// p moved to the nearest point of area, for a platform that cannot hold the
// pointer itself.
QPoint confined(QPoint p, const QRect& area);
// The outerSize x outerSize block of screen one pixel right of and below the
// release point (inside the outline's left and top edges). Pixels beyond the
// screen are white.
Plane squareAt(const Plane& screen, QPoint release, int outerSize);
// The taken square becomes the icon: its top-left corner copied into image,
// cut off at the plane's edge, and every mask pixel opaque.
void take(const Plane& square, Plane& image, Plane& mask);
} // namespace ScreenCapture
