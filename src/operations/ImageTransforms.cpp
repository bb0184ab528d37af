#include "operations/ImageTransforms.h"

#include "platform/Raster.h"

// The flips and reflections are stretching copies of a plane onto itself with
// a negative source extent; stretchBlt reads the plane as it was before the
// copy, so the result is the true mirror and not a half-overwritten one.

namespace ImageTransforms {

void flipHorizontal(Plane& p) {
    const int w = p.width(), h = p.height();
    stretchBlt(p, 0, 0, w, h, p, w - 1, 0, -w, h, RasterOp::Copy);
}

void flipVertical(Plane& p) {
    const int w = p.width(), h = p.height();
    stretchBlt(p, 0, 0, w, h, p, 0, h - 1, w, -h, RasterOp::Copy);
}

Plane rotatedClockwise(const Plane& p) {
    const int w = p.width(), h = p.height();
    Plane turned(h, w);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            turned.setPixel(h - 1 - y, x, p.pixel(x, y));
    return turned;
}

Plane rotatedAnticlockwise(const Plane& p) {
    const int w = p.width(), h = p.height();
    Plane turned(h, w);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            turned.setPixel(y, w - 1 - x, p.pixel(x, y));
    return turned;
}

void reflectLeftInRight(Plane& p) {
    const int half = p.width() / 2, h = p.height();
    stretchBlt(p, half, 0, half, h, p, half - 1, 0, -half, h, RasterOp::Copy);
}

void reflectRightInLeft(Plane& p) {
    const int half = p.width() / 2, h = p.height();
    stretchBlt(p, 0, 0, half, h, p, p.width() - 1, 0, -half, h, RasterOp::Copy);
}

void reflectTopInBottom(Plane& p) {
    const int w = p.width(), half = p.height() / 2;
    stretchBlt(p, 0, half, w, half, p, 0, half - 1, w, -half, RasterOp::Copy);
}

void reflectBottomInTop(Plane& p) {
    const int w = p.width(), half = p.height() / 2;
    stretchBlt(p, 0, 0, w, half, p, 0, p.height() - 1, w, -half, RasterOp::Copy);
}

} // namespace ImageTransforms
