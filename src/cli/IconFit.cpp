#include "cli/IconFit.h"

#include "editing/PasteFit.h"
#include "platform/Raster.h"

#include <cstdlib>

int IconFit::nearestSize(int width, int height) {
    const int side = std::max(width, height);
    int best = 48;
    for (const int size : {48, 32, 16})
        if (std::abs(side - size) < std::abs(side - best))
            best = size;
    return best;
}

IconFit::Result IconFit::fit(const Plane& mask, const Plane& image, int size) {
    const int w = image.width(), h = image.height();
    if (w == size && h == size)
        return {mask, image, {}};
    // The new icon, as New makes it: every pixel transparent.
    Result result{Plane(size, size, kWhite), Plane(size, size, kBlack), {}};
    PasteFit fitted{w, h};
    if (w > size || h > size)
        fitted = PasteFit::keepingAspect(w, h, size, size);
    const int x = (size - fitted.width) / 2, y = (size - fitted.height) / 2;
    stretchBlt(result.mask, x, y, fitted.width, fitted.height, mask, 0, 0, w, h, RasterOp::Copy);
    stretchBlt(result.image, x, y, fitted.width, fitted.height, image, 0, 0, w, h, RasterOp::Copy);
    const QString at = QStringLiteral(" in a %1 x %1 icon").arg(size);
    result.note = fitted.width == w && fitted.height == h
                      ? QStringLiteral("%1 x %2 centred").arg(w).arg(h) + at
                      : QStringLiteral("%1 x %2 shrunk to %3 x %4 (aspect kept), centred")
                                .arg(w)
                                .arg(h)
                                .arg(fitted.width)
                                .arg(fitted.height) +
                            at;
    return result;
}
