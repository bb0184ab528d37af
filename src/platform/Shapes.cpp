#include "platform/Shapes.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// The pixels a figure covers, clipped to the plane, painted in one pass.
class PixelSet {
public:
    explicit PixelSet(const Plane& plane)
        : width_(plane.width()), height_(plane.height()),
          marks_(static_cast<std::size_t>(width_) * height_, false) {}

    void add(int x, int y) {
        if (x >= 0 && y >= 0 && x < width_ && y < height_)
            marks_[static_cast<std::size_t>(y) * width_ + x] = true;
    }

    // Adds a square of the pen's width centred on (x, y).
    void addWide(int x, int y, int penWidth) {
        if (penWidth <= 1) {
            add(x, y);
            return;
        }
        const int lo = -(penWidth / 2), hi = lo + penWidth;
        for (int j = lo; j < hi; ++j)
            for (int i = lo; i < hi; ++i)
                add(x + i, y + j);
    }

    void paint(Plane& plane, PenMode mode, Colour colour) const {
        for (int y = 0; y < height_; ++y) {
            Colour* row = plane.row(y);
            for (int x = 0; x < width_; ++x) {
                if (!marks_[static_cast<std::size_t>(y) * width_ + x])
                    continue;
                row[x] = mode == PenMode::Invert ? (row[x] ^ kWhite) : colour;
            }
        }
    }

private:
    int width_, height_;
    std::vector<bool> marks_;
};

} // namespace

void drawLine(Plane& plane, int x1, int y1, int x2, int y2, const Pen& pen) {
    PixelSet set(plane);
    const int dx = std::abs(x2 - x1), dy = std::abs(y2 - y1);
    const int stepX = x1 < x2 ? 1 : -1, stepY = y1 < y2 ? 1 : -1;
    int x = x1, y = y1;
    if (dx >= dy) {
        int error = 2 * dy - dx;
        for (int i = 0; i < dx; ++i) {
            set.addWide(x, y, pen.width);
            if (error > 0) {
                y += stepY;
                error -= 2 * dx;
            }
            error += 2 * dy;
            x += stepX;
        }
    } else {
        int error = 2 * dx - dy;
        for (int i = 0; i < dy; ++i) {
            set.addWide(x, y, pen.width);
            if (error > 0) {
                x += stepX;
                error -= 2 * dy;
            }
            error += 2 * dx;
            y += stepY;
        }
    }
    set.paint(plane, pen.mode, pen.colour);
}

void drawBox(Plane& plane, int x1, int y1, int x2, int y2, const Pen& pen) {
    if (x1 > x2)
        std::swap(x1, x2);
    if (y1 > y2)
        std::swap(y1, y2);
    PixelSet set(plane);
    for (int x = x1; x <= x2; ++x) {
        set.addWide(x, y1, pen.width);
        set.addWide(x, y2, pen.width);
    }
    for (int y = y1; y <= y2; ++y) {
        set.addWide(x1, y, pen.width);
        set.addWide(x2, y, pen.width);
    }
    set.paint(plane, pen.mode, pen.colour);
}

void fillBox(Plane& plane, int x1, int y1, int x2, int y2, Colour colour) {
    if (x1 > x2)
        std::swap(x1, x2);
    if (y1 > y2)
        std::swap(y1, y2);
    x1 = std::max(x1, 0);
    y1 = std::max(y1, 0);
    x2 = std::min(x2, plane.width() - 1);
    y2 = std::min(y2, plane.height() - 1);
    for (int y = y1; y <= y2; ++y)
        for (int x = x1; x <= x2; ++x)
            plane.setPixel(x, y, colour);
}

void drawEllipse(Plane& plane, int left, int top, int right, int bottom, const Pen& pen,
                 std::optional<Colour> fill) {
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
    const long long w = right - left, h = bottom - top;
    if (w <= 0 || h <= 0)
        return;
    // Pixel (x, y) belongs to the ellipse when its centre lies inside the
    // ellipse inscribed in the box; in units of half pixels that is
    // (2x + 1 - w)^2 h^2 + (2y + 1 - h)^2 w^2 <= w^2 h^2, with x, y box-relative.
    auto inside = [&](int x, int y) {
        if (x < left || y < top || x >= right || y >= bottom)
            return false;
        const long long ex = 2LL * (x - left) + 1 - w, ey = 2LL * (y - top) + 1 - h;
        return ex * ex * h * h + ey * ey * w * w <= w * w * h * h;
    };
    PixelSet outline(plane), interior(plane);
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            if (!inside(x, y))
                continue;
            const bool edge =
                !inside(x - 1, y) || !inside(x + 1, y) || !inside(x, y - 1) || !inside(x, y + 1);
            if (edge)
                outline.addWide(x, y, pen.width);
            else
                interior.add(x, y);
        }
    }
    if (fill)
        interior.paint(plane, PenMode::Copy, *fill);
    outline.paint(plane, pen.mode, pen.colour);
}
