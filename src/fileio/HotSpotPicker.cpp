#include "fileio/HotSpotPicker.h"

#include "canvas/Coordinates.h"

#include <algorithm>
#include <cmath>

int HotSpotPicker::pixelOf(double v) const {
    const int pixel = static_cast<int>(std::trunc(v)) / zoom_;
    return std::min(pixel, maxIndex_);
}

int HotSpotPicker::clampedPixelOf(double v) const {
    return std::max(pixelOf(v), 0);
}

void HotSpotPicker::mouseDown(int button, double x, double y) {
    if (button != 1)
        return;
    hotSpot_ = {pixelOf(x), pixelOf(y)};
}

QString HotSpotPicker::readout(double x, double y) const {
    return Coordinates::pointText(clampedPixelOf(x), clampedPixelOf(y));
}

QString HotSpotPicker::hotXText() const {
    return Coordinates::twoDigits(hotSpot_.x);
}
QString HotSpotPicker::hotYText() const {
    return Coordinates::twoDigits(hotSpot_.y);
}
