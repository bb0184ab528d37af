#include "tools/ShapeTool.h"

#include "canvas/Canvas.h"
#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "platform/Shapes.h"

#include <algorithm>
#include <optional>

void ShapeTool::begin(const Gesture& gesture) {
    endX_ = gesture.startX;
    endY_ = gesture.startY;
    bandShown_ = false;
}

void ShapeTool::move(const Gesture& gesture, int x, int y) {
    if (bandShown_)
        toggleRubberBand(gesture);
    const int zoom = env_.document().zoom;
    endX_ = Coordinates::cellCentre(x, zoom);
    endY_ = Coordinates::cellCentre(y, zoom);
    toggleRubberBand(gesture);
    bandShown_ = true;
}

void ShapeTool::end(const Gesture& gesture) {
    if (bandShown_)
        toggleRubberBand(gesture);
    bandShown_ = false;
    paintPlanes(gesture);
    env_.refresh();
    env_.clearDragReadout();
}

// The band runs from the point as pressed to the snapped end; drawn a second
// time in invert mode it removes itself.
void ShapeTool::toggleRubberBand(const Gesture& gesture) {
    Plane& canvas = env_.canvas().PicMain;
    const Pen pen{kBlack, 1, PenMode::Invert};
    const int x1 = gesture.startX, y1 = gesture.startY;
    switch (figure_) {
    case Figure::Line:
        drawLine(canvas, x1, y1, endX_, endY_, pen);
        break;
    case Figure::Box:
        drawBox(canvas, x1, y1, endX_, endY_, pen);
        break;
    case Figure::Ellipse:
        drawEllipse(canvas, x1, y1, endX_, endY_, pen);
        break;
    }
}

void ShapeTool::paintPlanes(const Gesture& gesture) {
    IconDocument& doc = env_.document();
    const int zoom = doc.zoom;
    const int x1 = gesture.startX / zoom, y1 = gesture.startY / zoom;
    const int x2 = endX_ / zoom, y2 = endY_ / zoom;
    const DrawingColour& outer = gesture.colour;
    const DrawingColour& inner = inside_ == Inside::Filled ? gesture.other : gesture.colour;

    struct Target {
        Plane& plane;
        Colour outline;
        Colour inside;
    };
    for (Target t : {Target{doc.PicImage, outer.image, inner.image},
                     Target{doc.PicMask, outer.mask, inner.mask}}) {
        const Pen pen{t.outline, 1, PenMode::Copy};
        switch (figure_) {
        case Figure::Line:
            drawLine(t.plane, x1, y1, x2, y2, pen);
            // The line primitive leaves out its last point.
            t.plane.setPixel(x2, y2, t.outline);
            break;
        case Figure::Box:
            if (inside_ != Inside::Hollow)
                fillBox(t.plane, x1, y1, x2, y2, t.inside);
            drawBox(t.plane, x1, y1, x2, y2, pen);
            break;
        case Figure::Ellipse: {
            // The ellipse primitive leaves out the right and bottom edges of
            // its box, so the box reaches one past the bottom-right pixel.
            const auto fill =
                inside_ == Inside::Hollow ? std::nullopt : std::optional<Colour>(t.inside);
            drawEllipse(t.plane, std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) + 1,
                        std::max(y1, y2) + 1, pen, fill);
            break;
        }
        }
    }
}
