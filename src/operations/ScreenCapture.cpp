#include "operations/ScreenCapture.h"

#include "platform/Raster.h"

#include <algorithm>

namespace ScreenCapture {

QRect confinement(QSize screen, int iconSize) {
    // The pointer may reach the screen's size less the icon and one more
    // pixel, so the outline (two pixels wider than the icon) ends exactly on
    // the screen's last column and row.
    return QRect(QPoint(0, 0),
                 QPoint(screen.width() - iconSize - 2, screen.height() - iconSize - 2));
}

QPoint confined(QPoint p, const QRect& area) {
    return QPoint(std::clamp(p.x(), area.left(), std::max(area.left(), area.right())),
                  std::clamp(p.y(), area.top(), std::max(area.top(), area.bottom())));
}

Plane squareAt(const Plane& screen, QPoint release, int outerSize) {
    Plane square(outerSize, outerSize, kWhite);
    bitBlt(square, 0, 0, outerSize, outerSize, screen, release.x() + 1, release.y() + 1,
           RasterOp::Copy);
    return square;
}

void take(const Plane& square, Plane& image, Plane& mask) {
    mask.fill(kBlack);
    bitBlt(image, 0, 0, square.width(), square.height(), square, 0, 0, RasterOp::Copy);
}

} // namespace ScreenCapture
