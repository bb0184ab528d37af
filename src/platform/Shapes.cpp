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
          marks_(static_cast<std::size_t>(width_) * height_, 0) {}

    void add(int x, int y) {
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return;
        marks_[static_cast<std::size_t>(y) * width_ + x] = 1;
        left_ = std::min(left_, x);
        right_ = std::max(right_, x);
        top_ = std::min(top_, y);
        bottom_ = std::max(bottom_, y);
    }

    bool has(int x, int y) const {
        return x >= 0 && y >= 0 && x < width_ && y < height_ &&
               marks_[static_cast<std::size_t>(y) * width_ + x];
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

    // Visits only the figure's bounding box: a rubber band is redrawn on
    // every mouse move and mostly covers a small part of the canvas.
    void paint(Plane& plane, PenMode mode, Colour colour) const {
        for (int y = top_; y <= bottom_; ++y) {
            Colour* row = plane.row(y);
            for (int x = left_; x <= right_; ++x) {
                if (!marks_[static_cast<std::size_t>(y) * width_ + x])
                    continue;
                row[x] = mode == PenMode::Invert ? (row[x] ^ kWhite) : colour;
            }
        }
    }

  private:
    int width_, height_;
    std::vector<unsigned char> marks_;
    int left_ = width_, right_ = -1, top_ = height_, bottom_ = -1;
};

} // namespace

void drawLine(Plane& plane, int x1, int y1, int x2, int y2, const Pen& pen) {
    PixelSet set(plane);
    const int dx = std::abs(x2 - x1), dy = std::abs(y2 - y1);
    const int stepX = x1 < x2 ? 1 : -1, stepY = y1 < y2 ? 1 : -1;
    // Where the true line passes exactly half-way between two pixels, GDI
    // takes the upper (or left) one whichever way the line runs, so a line
    // covers the same pixels drawn in either direction. Running towards
    // smaller coordinates, that means stepping on a tie.
    int x = x1, y = y1;
    if (dx >= dy) {
        const int bias = stepY < 0 ? 1 : 0;
        int error = 2 * dy - dx;
        for (int i = 0; i < dx; ++i) {
            set.addWide(x, y, pen.width);
            if (error + bias > 0) {
                y += stepY;
                error -= 2 * dx;
            }
            error += 2 * dy;
            x += stepX;
        }
    } else {
        const int bias = stepX < 0 ? 1 : 0;
        int error = 2 * dx - dy;
        for (int i = 0; i < dy; ++i) {
            set.addWide(x, y, pen.width);
            if (error + bias > 0) {
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
    if (right - left <= 0 || bottom - top <= 0)
        return;
    // The outline runs through the middle of the box's outer pixels, so the
    // ellipse touches all four sides of [left, right) x [top, bottom) however
    // flat it is. One quarter is traced with the midpoint error term (after
    // Zingl's rasteriser) and mirrored into the other three.
    const int x0 = left, x1 = right - 1, y0 = top, y1 = bottom - 1;
    const long long a = x1 - x0, b = y1 - y0, oddB = b & 1;
    const long long stepDx = 8 * b * b, stepDy = 8 * a * a;
    long long dx = 4 * (1 - a) * b * b, dy = 4 * (oddB + 1) * a * a;
    long long error = dx + dy + oddB * a * a;
    int west = x0, east = x1;
    int south = y0 + static_cast<int>((b + 1) / 2), north = south - static_cast<int>(oddB);

    // Per row, the innermost outline pixel on each side: the fill lies between.
    const int rows = bottom - top;
    std::vector<int> innerWest(rows, left - 1), innerEast(rows, right);
    PixelSet outline(plane);
    auto plot = [&](int x, int y, bool westSide) {
        if (y < top || y >= bottom)
            return;
        outline.addWide(x, y, pen.width);
        int& inner = westSide ? innerWest[y - top] : innerEast[y - top];
        inner = westSide ? std::max(inner, x) : std::min(inner, x);
    };
    do {
        plot(east, south, false);
        plot(west, south, true);
        plot(west, north, true);
        plot(east, north, false);
        const long long e2 = 2 * error;
        if (e2 <= dy) {
            ++south;
            --north;
            dy += stepDy;
            error += dy;
        }
        if (e2 >= dx || 2 * error > dy) {
            ++west;
            --east;
            dx += stepDx;
            error += dx;
        }
    } while (west <= east);
    // A very narrow ellipse runs out of columns before it reaches its top and
    // bottom rows: finish the tips straight up and down.
    while (south - north <= b) {
        plot(west - 1, south, true);
        plot(east + 1, south, false);
        plot(west - 1, north, true);
        plot(east + 1, north, false);
        ++south;
        --north;
    }

    outline.paint(plane, pen.mode, pen.colour);
    if (!fill)
        return;
    PixelSet interior(plane);
    for (int y = top; y < bottom; ++y)
        for (int x = innerWest[y - top] + 1; x < innerEast[y - top]; ++x)
            if (!outline.has(x, y))
                interior.add(x, y);
    interior.paint(plane, PenMode::Copy, *fill);
}
