#include "tools/FloodTool.h"

#include "canvas/Canvas.h"
#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "platform/FloodFill.h"

#include <algorithm>

void FloodTool::begin(const Gesture& gesture) {
    const int zoom = env_.document().zoom;
    const int px = Coordinates::iconPixel(gesture.startX, zoom);
    const int py = Coordinates::iconPixel(gesture.startY, zoom);
    // The closing grid line at 384 lies past the last pixel.
    if (!env_.document().PicMask.contains(px, py))
        return;
    fill(px, py, gesture.colour);
}

// Each plane on its own is flooded with a colour the icon does not hold;
// the pixels that took the marker in both planes are the region to paint.
// That keeps a pixel out when only its colour matches (a transparent pixel
// beside an opaque black one) or only its mask does.
void FloodTool::fill(int px, int py, const DrawingColour& colour) {
    IconDocument& doc = env_.document();
    Plane maskCopy = doc.PicMask;
    Plane imageCopy = doc.PicImage;
    const Colour marker = findMarker();
    floodFillSurface(maskCopy, px, py, marker);
    floodFillSurface(imageCopy, px, py, marker);
    for (int y = 0; y <= doc.maxIndex; ++y) {
        for (int x = 0; x <= doc.maxIndex; ++x) {
            if (maskCopy.pixel(x, y) != marker || imageCopy.pixel(x, y) != marker)
                continue;
            doc.PicMask.setPixel(x, y, colour.mask);
            doc.PicImage.setPixel(x, y, colour.image);
        }
    }
    env_.refresh();
}

Colour FloodTool::findMarker() const {
    const Plane& chart = env_.colourChart();
    for (int attempt = 0; attempt < kMarkerAttempts; ++attempt) {
        const int x = static_cast<int>(env_.random() * 51);
        const int y = static_cast<int>(env_.random() * 335);
        // Outside the chart (a generator giving 1.0) reads as invalid, which
        // is past white and so rejected too.
        const Colour c = chart.pixel(x, y);
        if (c != kBlack && c < kWhite && !usedInIcon(c))
            return c;
        env_.letEventsRun();
    }
    // The chart holds about 14,500 usable colours and an icon at most 2,304
    // pixels, so the random search practically always succeeds within a few
    // tries; only a generator stuck on black or white, or on the icon's own
    // colours, gets here. Preview and colour plane hold at most 2 * N * N
    // colours between them, so counting up from 1 finds a free one within
    // that many steps.
    Colour c = 1;
    while (usedInIcon(c))
        ++c;
    return c;
}

// The preview shows opaque pixels in their colour; an inverting pixel shows
// there only mixed with the button face, so the colour plane is searched as
// well: a marker equal to an inverting pixel's colour would let the fill
// leak into that pixel.
bool FloodTool::usedInIcon(Colour c) const {
    const auto& preview = env_.canvas().PicIcon.pixels();
    const auto& image = env_.document().PicImage.pixels();
    return std::find(preview.begin(), preview.end(), c) != preview.end() ||
           std::find(image.begin(), image.end(), c) != image.end();
}
