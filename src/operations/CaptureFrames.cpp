#include "operations/CaptureFrames.h"

namespace {

// Where (x, y) of the outline lies on the walk clockwise from the top-left
// corner; -1 inside the square.
int stepAlongOutline(int x, int y, int size) {
    const int last = size - 1;
    if (y == 0)
        return x;
    if (x == last)
        return last + y;
    if (y == last)
        return 2 * last + (last - x);
    if (x == 0)
        return 3 * last + (last - y);
    return -1;
}

} // namespace

Plane CaptureFrames::picture(int outerSize) {
    if (outerSize != 18 && outerSize != 34 && outerSize != 50)
        return {};
    const int s = outerSize;
    Plane picture(2 * s, kPhases * s, kBlack);
    for (int phase = 0; phase < kPhases; ++phase)
        for (int y = 0; y < s; ++y)
            for (int x = 0; x < s; ++x) {
                const int step = stepAlongOutline(x, y, s);
                const int top = phase * s;
                picture.setPixel(x, top + y, step < 0 ? kWhite : kBlack);
                // The walk round is a multiple of four pixels long, so the
                // dashes meet without a seam at the corner where it starts.
                const bool white = step >= 0 && (step + 4 - phase) % 4 < 2;
                picture.setPixel(s + x, top + y, white ? kWhite : kBlack);
            }
    return picture;
}
