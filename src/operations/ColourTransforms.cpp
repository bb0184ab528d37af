#include "operations/ColourTransforms.h"

namespace {

// Row by row, each row left to right; pixels under a white mask are skipped.
template <typename Change> void forEachOpaquePixel(Plane& image, const Plane& mask, Change change) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (mask.pixel(x, y) != kWhite)
                image.setPixel(x, y, change(image.pixel(x, y)));
}

} // namespace

namespace ColourTransforms {

void invert(Plane& image, const Plane& mask) {
    forEachOpaquePixel(image, mask, [](Colour c) {
        return rgb(255 - redOf(c), 255 - greenOf(c), 255 - blueOf(c));
    });
}

void greyscale(Plane& image, const Plane& mask) {
    forEachOpaquePixel(image, mask, greyOf);
}

Colour greyOf(Colour c) {
    // The weights sum to 1000, so the exact quotient and its remainder give the
    // rounding without floating point: above a half rounds up, an exact half
    // only when that makes the grey even.
    const int weighted = 222 * redOf(c) + 707 * greenOf(c) + 71 * blueOf(c);
    int grey = weighted / 1000;
    const int rest = weighted % 1000;
    if (rest > 500 || (rest == 500 && grey % 2 == 1))
        ++grey;
    return rgb(grey, grey, grey);
}

} // namespace ColourTransforms
