#include "tools/FreehandTool.h"

#include "canvas/Canvas.h"
#include "canvas/Coordinates.h"
#include "document/IconDocument.h"

#include <optional>

// A click paints at once, as if the pointer had moved there.
void FreehandTool::begin(const Gesture& gesture) {
    move(gesture, gesture.startX, gesture.startY);
}

void FreehandTool::move(const Gesture& gesture, int x, int y) {
    // Only strictly inside the grid: the outer grid lines belong to no cell.
    if (x < 1 || x > Canvas::kCanvasSize - 1 || y < 1 || y > Canvas::kCanvasSize - 1)
        return;
    IconDocument& doc = env_.document();
    Canvas& canvas = env_.canvas();
    const DrawingColour& c = gesture.colour;
    const int px = Coordinates::iconPixel(x, doc.zoom), py = Coordinates::iconPixel(y, doc.zoom);
    canvas.paintCell(doc.zoom, Coordinates::cellCorner(x, doc.zoom),
                     Coordinates::cellCorner(y, doc.zoom),
                     c.transparent ? std::nullopt : std::optional<Colour>(c.canvas));
    canvas.PicIcon.setPixel(px, py, c.preview);
    doc.PicMask.setPixel(px, py, c.mask);
    doc.PicImage.setPixel(px, py, c.image);
}

void FreehandTool::end(const Gesture&) {
    env_.document().modified = true;
}
