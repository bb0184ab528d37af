#include "platform/Raster.h"

#include <algorithm>
#include <cstdlib>

Colour applyRasterOp(Colour dst, Colour src, RasterOp op) {
    switch (op) {
    case RasterOp::Copy:
        return src;
    case RasterOp::And:
        return dst & src;
    case RasterOp::Xor:
        return dst ^ src;
    }
    return src;
}

void bitBlt(Plane& dst, int dx, int dy, int w, int h, const Plane& src, int sx, int sy,
            RasterOp op) {
    stretchBlt(dst, dx, dy, w, h, src, sx, sy, w, h, op);
}

namespace {

// Where each step of a span lands: origin + i for a positive extent,
// origin - i for a negative one.
int spanPosition(int origin, int extent, int i) {
    return extent < 0 ? origin - i : origin + i;
}

} // namespace

void stretchBlt(Plane& dst, int dx, int dy, int dw, int dh, const Plane& src, int sx, int sy,
                int sw, int sh, RasterOp op) {
    if (dw == 0 || dh == 0 || sw == 0 || sh == 0 || src.isEmpty() || dst.isEmpty())
        return;
    // Reading from a copy makes a transfer of a plane onto itself behave as if
    // the whole source were read first.
    const Plane source = &src == &dst ? Plane(src) : Plane();
    const Plane& from = &src == &dst ? source : src;

    const long long adw = std::llabs(dw), adh = std::llabs(dh);
    const long long asw = std::llabs(sw), ash = std::llabs(sh);
    // Mirroring happens when source and destination extents differ in sign;
    // expressed here by walking the destination forwards and the source in the
    // direction that the sign difference asks for.
    for (long long j = 0; j < adh; ++j) {
        const int y = spanPosition(dy, dh, static_cast<int>(j));
        if (y < 0 || y >= dst.height())
            continue;
        const int srcStep = static_cast<int>(j * ash / adh);
        const int syy = spanPosition(sy, sh, srcStep);
        if (syy < 0 || syy >= from.height())
            continue;
        const Colour* srcRow = from.row(syy);
        Colour* dstRow = dst.row(y);
        for (long long i = 0; i < adw; ++i) {
            const int x = spanPosition(dx, dw, static_cast<int>(i));
            if (x < 0 || x >= dst.width())
                continue;
            const int sxx = spanPosition(sx, sw, static_cast<int>(i * asw / adw));
            if (sxx < 0 || sxx >= from.width())
                continue;
            dstRow[x] = applyRasterOp(dstRow[x], srcRow[sxx], op);
        }
    }
}

void fillRect(Plane& dst, int left, int top, int right, int bottom, Colour c) {
    left = std::max(left, 0);
    top = std::max(top, 0);
    right = std::min(right, dst.width());
    bottom = std::min(bottom, dst.height());
    // A rectangle that is empty, inside out or wholly off the plane paints
    // nothing (and must not hand std::fill a reversed range).
    if (left >= right)
        return;
    for (int y = top; y < bottom; ++y)
        std::fill(dst.row(y) + left, dst.row(y) + right, c);
}
