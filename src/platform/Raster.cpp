#include "platform/Raster.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// Where each step of a span lands: origin + i for a positive extent,
// origin - i for a negative one.
int spanPosition(int origin, int extent, int i) {
    return extent < 0 ? origin - i : origin + i;
}

// Combines one run of pixels; the operation is chosen once per run rather than
// once per pixel, which keeps a full canvas redraw well inside a frame.
void combineRun(Colour* dst, const Colour* src, int count, RasterOp op) {
    switch (op) {
    case RasterOp::Copy:
        std::copy(src, src + count, dst);
        break;
    case RasterOp::And:
        for (int i = 0; i < count; ++i)
            dst[i] &= src[i];
        break;
    case RasterOp::Xor:
        for (int i = 0; i < count; ++i)
            dst[i] ^= src[i];
        break;
    }
}

} // namespace

void bitBlt(Plane& dst, int dx, int dy, int w, int h, const Plane& src, int sx, int sy,
            RasterOp op) {
    if (w <= 0 || h <= 0)
        return;
    if (&src == &dst) {
        const Plane copy(src);
        bitBlt(dst, dx, dy, w, h, copy, sx, sy, op);
        return;
    }
    // Clip the block against both planes, moving both origins together.
    const int left = std::max({0, -dx, -sx});
    const int top = std::max({0, -dy, -sy});
    const int right = std::min({w, dst.width() - dx, src.width() - sx});
    const int bottom = std::min({h, dst.height() - dy, src.height() - sy});
    if (left >= right || top >= bottom)
        return;
    for (int j = top; j < bottom; ++j)
        combineRun(dst.row(dy + j) + dx + left, src.row(sy + j) + sx + left, right - left, op);
}

void stretchBlt(Plane& dst, int dx, int dy, int dw, int dh, const Plane& src, int sx, int sy,
                int sw, int sh, RasterOp op) {
    if (dw == 0 || dh == 0 || sw == 0 || sh == 0 || src.isEmpty() || dst.isEmpty())
        return;
    if (dw > 0 && dh > 0 && dw == sw && dh == sh) {
        bitBlt(dst, dx, dy, dw, dh, src, sx, sy, op);
        return;
    }
    // Reading from a copy makes a transfer of a plane onto itself behave as if
    // the whole source were read first.
    const Plane source = &src == &dst ? Plane(src) : Plane();
    const Plane& from = &src == &dst ? source : src;

    const long long adw = std::llabs(dw), adh = std::llabs(dh);
    const long long asw = std::llabs(sw), ash = std::llabs(sh);
    // Only destination pixels inside the plane are visited, so a huge extent
    // costs no more than the plane. Mirroring happens when source and
    // destination extents differ in sign: the destination is walked along its
    // extent and the source along its own.
    std::vector<int> targetColumns, sourceColumns;
    for (int x = 0; x < dst.width(); ++x) {
        const long long i = dw > 0 ? x - dx : dx - x;
        if (i < 0 || i >= adw)
            continue;
        const int sxx = spanPosition(sx, sw, static_cast<int>(i * asw / adw));
        if (sxx < 0 || sxx >= from.width())
            continue;
        targetColumns.push_back(x);
        sourceColumns.push_back(sxx);
    }
    const std::size_t columns = targetColumns.size();
    for (int y = 0; y < dst.height(); ++y) {
        const long long j = dh > 0 ? y - dy : dy - y;
        if (j < 0 || j >= adh)
            continue;
        const int syy = spanPosition(sy, sh, static_cast<int>(j * ash / adh));
        if (syy < 0 || syy >= from.height())
            continue;
        const Colour* srcRow = from.row(syy);
        Colour* dstRow = dst.row(y);
        switch (op) {
        case RasterOp::Copy:
            for (std::size_t k = 0; k < columns; ++k)
                dstRow[targetColumns[k]] = srcRow[sourceColumns[k]];
            break;
        case RasterOp::And:
            for (std::size_t k = 0; k < columns; ++k)
                dstRow[targetColumns[k]] &= srcRow[sourceColumns[k]];
            break;
        case RasterOp::Xor:
            for (std::size_t k = 0; k < columns; ++k)
                dstRow[targetColumns[k]] ^= srcRow[sourceColumns[k]];
            break;
        }
    }
}

void fillRect(Plane& dst, int left, int top, int right, int bottom, Colour c) {
    left = std::max(left, 0);
    top = std::max(top, 0);
    right = std::min(right, dst.width());
    bottom = std::min(bottom, dst.height());
    if (left >= right || top >= bottom)
        return;
    for (int y = top; y < bottom; ++y)
        std::fill(dst.row(y) + left, dst.row(y) + right, c);
}

void drawMasked(Plane& dst, int dx, int dy, const Plane& mask, const Plane& image) {
    const int w = mask.width(), h = mask.height();
    bitBlt(dst, dx, dy, w, h, mask, 0, 0, RasterOp::And);
    bitBlt(dst, dx, dy, w, h, image, 0, 0, RasterOp::Xor);
}

void stretchMasked(Plane& dst, int dx, int dy, int dw, int dh, const Plane& mask,
                   const Plane& image) {
    const int w = mask.width(), h = mask.height();
    stretchBlt(dst, dx, dy, dw, dh, mask, 0, 0, w, h, RasterOp::And);
    stretchBlt(dst, dx, dy, dw, dh, image, 0, 0, w, h, RasterOp::Xor);
}
