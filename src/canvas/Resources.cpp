#include "canvas/Resources.h"

namespace {

Plane makeGridLine(bool horizontal) {
    Plane line(horizontal ? 385 : 1, horizontal ? 1 : 385);
    for (int i = 0; i < 385; ++i) {
        const Colour c = i % 2 == 0 ? kBlack : kGridGrey;
        line.setPixel(horizontal ? i : 0, horizontal ? 0 : i, c);
    }
    return line;
}

Plane makePattern() {
    Plane pattern(23, 23, kWhite);
    for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 23; ++x)
            if (y == 0 || y == 22 || (x + y) % 4 == 0)
                pattern.setPixel(x, y, kBlack);
    return pattern;
}

} // namespace

const Plane& Resources::horizontalGridLine() {
    static const Plane line = makeGridLine(true);
    return line;
}

const Plane& Resources::verticalGridLine() {
    static const Plane line = makeGridLine(false);
    return line;
}

const Plane& Resources::transparentPattern() {
    static const Plane pattern = makePattern();
    return pattern;
}
