#include "platform/Plane.h"

#include <algorithm>

Plane::Plane(int width, int height, Colour fill) {
    reset(width, height, fill);
}

Colour Plane::pixel(int x, int y) const {
    if (!contains(x, y))
        return kInvalidColour;
    return pixels_[static_cast<std::size_t>(y) * width_ + x];
}

void Plane::setPixel(int x, int y, Colour c) {
    if (contains(x, y))
        pixels_[static_cast<std::size_t>(y) * width_ + x] = c;
}

void Plane::fill(Colour c) {
    std::fill(pixels_.begin(), pixels_.end(), c);
}

void Plane::reset(int width, int height, Colour fill) {
    width_ = std::max(width, 0);
    height_ = std::max(height, 0);
    pixels_.assign(static_cast<std::size_t>(width_) * height_, fill);
}
