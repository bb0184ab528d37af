#include "tools/SelectTool.h"

#include "canvas/Canvas.h"
#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/Selection.h"
#include "platform/Raster.h"
#include "tools/Readouts.h"

#include <cstdlib>
#include <utility>

void SelectTool::mouseDown(int x, int y) {
    Selection& sel = context_.selection();
    const int zoom = context_.doc().zoom;
    x = Coordinates::cellCorner(x, zoom);
    y = Coordinates::cellCorner(y, zoom);
    const Selection::Rect& r = sel.SelRect;
    const bool inside = x >= r.Left && x <= r.Right && y >= r.Top && y <= r.Bottom;
    if (sel.exists() && inside) {
        if (sel.SelMarked)
            sel.BeginMove();
        dragging = true;
        offsetLeft_ = x - r.Left;
        offsetRight_ = r.Right - x;
        offsetTop_ = y - r.Top;
        offsetBottom_ = r.Bottom - y;
        dragTo(x, y);
        return;
    }
    context_.commitSelection();
    marking = true;
    sel.SelRect = Selection::Rect{x, y, x, y};
    sel.drawMarquee();
}

void SelectTool::mouseMove(int x, int y) {
    if (!dragging && !marking)
        return;
    const int zoom = context_.doc().zoom;
    x = Coordinates::cellCorner(x, zoom);
    y = Coordinates::cellCorner(y, zoom);
    // A moved selection may follow the pointer off the canvas; a marked
    // rectangle ends at the canvas edge.
    if (dragging)
        dragTo(x, y);
    else
        markTo(Coordinates::clampToCanvas(x), Coordinates::clampToCanvas(y));
}

void SelectTool::mouseUp(int, int) {
    Selection& sel = context_.selection();
    if (dragging) {
        // Each move restored the canvas without the marquee, so this draws
        // it around the selection's new place.
        sel.drawMarquee();
        dragging = false;
        context_.doc().modified = true;
    } else if (marking) {
        finishMarking();
    }
}

void SelectTool::dragTo(int x, int y) {
    Selection& sel = context_.selection();
    IconDocument& doc = context_.doc();
    Canvas& canvas = context_.canvas();
    Selection::Rect& r = sel.SelRect;
    r = Selection::Rect{x - offsetLeft_, y - offsetTop_, x + offsetRight_, y + offsetBottom_};
    readouts_.toXY = Coordinates::pointText(sel.iconLeft(), sel.iconTop());
    bitBlt(canvas.PicMain, 0, 0, Canvas::kCanvasSize, Canvas::kCanvasSize, canvas.PicMainCopy, 0, 0,
           RasterOp::Copy);
    // The preview, too, starts again from the planes so the selection leaves
    // no trail where it was.
    canvas.composePreview(doc);
    canvas.drawFloating(doc, r.Left, r.Top, r.Right, r.Bottom);
}

void SelectTool::markTo(int x, int y) {
    Selection& sel = context_.selection();
    sel.drawMarquee();
    sel.SelRect.Right = x;
    sel.SelRect.Bottom = y;
    sel.drawMarquee();
    const int zoom = context_.doc().zoom;
    readouts_.toXY = Coordinates::sizeText(std::abs(x - sel.SelRect.Left) / zoom,
                                           std::abs(y - sel.SelRect.Top) / zoom);
}

void SelectTool::finishMarking() {
    Selection& sel = context_.selection();
    Selection::Rect& r = sel.SelRect;
    marking = false;
    sel.drawMarquee();
    if (r.Left > r.Right)
        std::swap(r.Left, r.Right);
    if (r.Top > r.Bottom)
        std::swap(r.Top, r.Bottom);
    readouts_.toXY.clear();
    if (r.Right == r.Left || r.Bottom == r.Top) {
        // A rectangle with no area is no selection.
        r = Selection::Rect{};
        return;
    }
    sel.LiftSelection();
    sel.drawMarquee();
    sel.SelMarked = true;
}
