#include "tools/SampleTool.h"

#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "tools/ButtonColours.h"

void SampleTool::begin(const Gesture& gesture) {
    move(gesture, gesture.startX, gesture.startY);
}

void SampleTool::move(const Gesture& gesture, int x, int y) {
    const IconDocument& doc = env_.document();
    const int px = Coordinates::iconPixel(x, doc.zoom), py = Coordinates::iconPixel(y, doc.zoom);
    // The division truncates, so the pointer up to a cell left of or above
    // the canvas still reads the first pixel. Past the right and bottom grid
    // line, or further out, there is nothing to sample.
    if (!doc.PicMask.contains(px, py))
        return;
    const Colour mask = doc.PicMask.pixel(px, py);
    const Colour colour = doc.PicImage.pixel(px, py);
    // An inverting pixel (white mask, colour not black) gives its colour:
    // only the transparent pair reads as "Transparent".
    const bool transparent = mask == kWhite && colour == kBlack;
    env_.colours().value[gesture.buttonIndex] =
        transparent ? kTransparentColour : static_cast<std::int32_t>(colour);
}

void SampleTool::end(const Gesture&) {
    env_.chooseTool(env_.previousTool());
}
