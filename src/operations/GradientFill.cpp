#include "operations/GradientFill.h"

#include "platform/Raster.h"
#include "platform/Shapes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace GradientFill {

namespace {

constexpr int kLastIndex = 255;
// The scratch square the diagonal bands are drawn on is as wide as the
// largest icon, and the bands run over twice its width whatever the icon
// size, so a diagonal on a 16 or 32 pixel icon stops far short of the end
// colour (about index 82 and 167). Intended: the diagonals are meant to look
// like this, and only a 48 pixel icon reaches the end colour.
constexpr int kScratch = 48;
constexpr int kDiagonalLength = 2 * kScratch;

// The first whole coordinate of diagonal band `band` among 256 bands, each
// length / 255 long, along a strip `length` long. A band covers the
// coordinates from its first up to the next band's first, so a diagonal takes
// the band its first point lies in: the corner pixel, on the second line,
// gets index 2, next to the start colour.
int bandStart(int band, int length) {
    return (band * length + kLastIndex - 1) / kLastIndex;
}

// 0, 90, 180, 270 and 360 degrees: bands across the square, straight. The
// 256 bands are each S / 255 wide, so every row (or column) is overlapped by
// about 255 / S of them, and the last band starts on the square's far edge,
// outside it. A row shows one of the bands it overlaps, spread evenly from
// the first band on the first row to the last band inside the square (254)
// on the last row: the start side gets the start colour and the far side a
// colour next to the end colour, on every icon size.
void drawStraight(Plane& picture, int angle, const Ramp& ramp) {
    const int size = picture.width();
    const bool upright = angle % 180 == 0; // vertical bands, running left to right
    const bool reversed = angle == 180 || angle == 270;
    constexpr int kLastInside = kLastIndex - 1;
    for (int k = 0; k < size; ++k) {
        const int band = (2 * k * kLastInside + size - 1) / (2 * (size - 1));
        const Colour colour = ramp.at(reversed ? kLastIndex - band : band);
        if (upright)
            fillRect(picture, k, 0, k + 1, size, colour);
        else
            fillRect(picture, 0, k, size, k + 1, colour);
    }
}

// 45, 135, 225 and 315 degrees: bands parallel to the anti-diagonal from the
// scratch square's top-left corner, copied mirrored as the angle asks.
void drawDiagonal(Plane& picture, int angle, const Ramp& ramp) {
    Plane scratch(kScratch, kScratch);
    for (int band = 0; band <= kLastIndex; ++band) {
        const Pen pen{ramp.at(band)};
        // The line from (-1, t) to (t, -1) leaves out its last point and so
        // covers the pixels with x + y = t - 1.
        for (int t = bandStart(band, kDiagonalLength); t < bandStart(band + 1, kDiagonalLength);
             ++t)
            drawLine(scratch, -1, t, t, -1, pen);
    }
    const int size = picture.width();
    const bool mirrorX = angle == 135 || angle == 225;
    const bool mirrorY = angle == 225 || angle == 315;
    stretchBlt(picture, mirrorX ? size - 1 : 0, mirrorY ? size - 1 : 0, mirrorX ? -size : size,
               mirrorY ? -size : size, scratch, 0, 0, size, size, RasterOp::Copy);
}

// The outline of the circle of radius `radius` around (cx, cy), one pixel
// wide: the pixels whose distance from the centre is within half a pixel of
// the radius. Successive circles less than a pixel apart thus leave no pixel
// of the disc uncovered.
void drawCircle(Plane& picture, int cx, int cy, double radius, Colour colour) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const double distance = std::hypot(x - cx, y - cy);
            if (distance >= radius - 0.5 && distance < radius + 0.5)
                picture.setPixel(x, y, colour);
        }
}

} // namespace

Ramp::Ramp(Colour start, Colour end) {
    const std::array<int, 3> from{redOf(start), greenOf(start), blueOf(start)};
    const std::array<int, 3> to{redOf(end), greenOf(end), blueOf(end)};
    for (std::size_t c = 0; c < 3; ++c) {
        begin_[c] = from[c];
        rising_[c] = from[c] <= to[c];
        step_[c] = static_cast<float>(std::abs(to[c] - from[c])) / 255.0f;
    }
}

Colour Ramp::at(int index) const {
    std::array<int, 3> value{};
    const float k = static_cast<float>(index);
    for (std::size_t c = 0; c < 3; ++c) {
        const float begin = static_cast<float>(begin_[c]);
        const float exact = rising_[c] ? begin + k * step_[c] : begin - k * step_[c];
        // nearbyint rounds in the default mode: to nearest, ties to even.
        value[c] = static_cast<int>(std::nearbyint(exact));
    }
    return rgb(value[0], value[1], value[2]);
}

Plane linear(int size, int angle, const Ramp& ramp) {
    Plane picture(size, size);
    if (angle % 90 == 0)
        drawStraight(picture, angle, ramp);
    else
        drawDiagonal(picture, angle, ramp);
    return picture;
}

Plane spherical(int size, int cx, int cy, const Ramp& ramp, const CircleDrawn& circleDrawn) {
    Plane picture(size, size, kButtonFace);
    double radius = 0;
    for (const int x : {0, size})
        for (const int y : {0, size})
            radius = std::max(radius, std::hypot(x - cx, y - cy));
    for (int k = 0; k <= kLastIndex; ++k) {
        drawCircle(picture, cx, cy, k * radius / kLastIndex, ramp.at(k));
        if (circleDrawn && !circleDrawn(picture))
            break;
    }
    return picture;
}

void fillTransparent(Plane& image, const Plane& mask, const Plane& gradient) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (mask.pixel(x, y) == kWhite)
                image.setPixel(x, y, gradient.pixel(x, y));
}

} // namespace GradientFill
