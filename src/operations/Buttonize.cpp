#include "operations/Buttonize.h"

#include <algorithm>

namespace Buttonize {

Rings ringsFor(int size) {
    // The uneven series are the bevel's look at each size and are kept as they
    // are: the small icon gets few strong rings, the large one many faint ones.
    switch (size) {
    case 16:
        return {1, 60};
    case 32:
        return {2, 30};
    case 48:
        return {3, 10};
    }
    return {-1, 0};
}

Colour shade(Colour c, bool darken, int amount) {
    const auto channel = [&](int v) {
        return darken ? std::max(v - amount, 0) : std::min(v + amount, 255);
    };
    return rgb(channel(redOf(c)), channel(greenOf(c)), channel(blueOf(c)));
}

void apply(Plane& image, const Plane& mask) {
    const int right = image.width() - 1, bottom = image.height() - 1;
    const auto shadePixel = [&](int x, int y, bool darken, int amount) {
        if (mask.pixel(x, y) == kBlack)
            image.setPixel(x, y, shade(image.pixel(x, y), darken, amount));
    };
    Rings rings = ringsFor(image.width());
    for (int d = rings.innermost; d >= 0; --d, rings.amount *= 2) {
        // The corners go with the top and bottom rows, so every pixel of a
        // ring is shaded exactly once.
        for (int x = d; x <= right - d; ++x) {
            shadePixel(x, d, false, rings.amount);
            shadePixel(x, bottom - d, true, rings.amount);
        }
        for (int y = d + 1; y <= bottom - d - 1; ++y) {
            shadePixel(right - d, y, true, rings.amount);
            shadePixel(d, y, false, rings.amount);
        }
    }
}

} // namespace Buttonize
