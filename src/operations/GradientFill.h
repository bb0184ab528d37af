#pragma once

#include "platform/Plane.h"

#include <array>
#include <functional>

// Gradient Transparency: the colour ramp, the linear and spherical gradient
// squares the dialog previews, and the fill that puts one under the icon's
// transparent pixels. Every gradient is an S x S opaque colour plane, S the
// icon size.
namespace GradientFill {

// The 256 colours from start (index 0) to end (index 255). Each channel moves
// by |end - start| / 255 an index in single precision, rounded to nearest
// with ties to even.
class Ramp {
  public:
    Ramp(Colour start, Colour end);
    Colour at(int index) const;

  private:
    Colour start_;
    std::array<int, 3> begin_{};
    std::array<bool, 3> rising_{};
    std::array<float, 3> step_{};
};

// The angles the dialog's spinner takes: 0, 45, ..., 360.
constexpr int kAngleStep = 45;
constexpr int kMaxAngle = 360;

// The linear gradient at angle (a multiple of 45): 0 and 360 run from the
// left edge, each further 45 degrees turns the start side a step clockwise.
Plane linear(int size, int angle, const Ramp& ramp);

// Called after each circle of the spherical gradient with the picture so far;
// returning false stops the drawing there.
using CircleDrawn = std::function<bool(const Plane&)>;

// The spherical gradient around (cx, cy): circles from the start colour at
// the centre to the end colour at the farthest corner of the square.
Plane spherical(int size, int cx, int cy, const Ramp& ramp, const CircleDrawn& circleDrawn = {});

// Writes gradient's colour under every pixel whose mask is white; the mask
// and every opaque pixel stay as they are.
void fillTransparent(Plane& image, const Plane& mask, const Plane& gradient);

} // namespace GradientFill
