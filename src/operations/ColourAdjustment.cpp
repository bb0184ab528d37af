#include "operations/ColourAdjustment.h"

ColourAdjustment::ColourAdjustment(const Plane& image, const Plane& mask)
    : width_(image.width()), shadeImage_(image), shadeMask_(mask) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < width_; ++x) {
            const Colour c = image.pixel(x, y);
            start_.push_back(mask.pixel(x, y) == kBlack ? Triple{redOf(c), greenOf(c), blueOf(c)}
                                                        : Triple{kMarker, kMarker, kMarker});
        }
    accumulator_ = result_ = start_;
}

void ColourAdjustment::spin(Spinner spinner, int value) {
    if (value == last_[spinner])
        return;
    const int step = value > last_[spinner] ? kStep : -kStep;
    // A channel pushed out of 0..255 freezes at its last value inside rather
    // than being clamped: the accumulator keeps counting, so turning back
    // brings the colour back only after as many steps. The spinners behave so
    // on purpose; it keeps every step reversible.
    const auto stepChannel = [step](int& counted, int& shown) {
        counted += step;
        if (counted >= 0 && counted <= 255)
            shown = counted;
    };
    for (std::size_t i = 0; i < accumulator_.size(); ++i) {
        Triple& a = accumulator_[i];
        Triple& r = result_[i];
        if (spinner == Brightness || spinner == Red)
            stepChannel(a.red, r.red);
        if (spinner == Brightness || spinner == Green)
            stepChannel(a.green, r.green);
        if (spinner == Brightness || spinner == Blue)
            stepChannel(a.blue, r.blue);
    }
    drawResult();
    last_[spinner] = value;
}

void ColourAdjustment::reset() {
    accumulator_ = result_ = start_;
    // Reset draws every pixel anew: an inverting pixel now shows the
    // preview's background, as a transparent one does.
    for (std::size_t i = 0; i < start_.size(); ++i) {
        const bool marked = start_[i].red == kMarker;
        shadeImage_.setPixel(static_cast<int>(i) % width_, static_cast<int>(i) / width_,
                             marked ? kBlack : colourOf(start_[i]));
    }
    last_ = {};
}

void ColourAdjustment::apply(Plane& image) const {
    for (std::size_t i = 0; i < result_.size(); ++i)
        if (result_[i].red != kMarker)
            image.setPixel(static_cast<int>(i) % width_, static_cast<int>(i) / width_,
                           colourOf(result_[i]));
}

void ColourAdjustment::drawResult() {
    apply(shadeImage_);
}
