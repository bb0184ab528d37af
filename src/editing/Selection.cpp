#include "editing/Selection.h"

#include "canvas/Canvas.h"
#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/EditingDialogs.h"
#include "editing/PasteFit.h"
#include "platform/Raster.h"
#include "platform/Services.h"

bool Selection::emptyFloating() const {
    // An empty clipboard pasted: nothing to outline.
    return SelFloating && context_.doc().PicSelMask.isEmpty();
}

int Selection::iconLeft() const {
    return SelRect.Left / context_.doc().zoom;
}

int Selection::iconTop() const {
    return SelRect.Top / context_.doc().zoom;
}

void Selection::LiftSelection() {
    IconDocument& doc = context_.doc();
    const int w = (SelRect.Right - SelRect.Left) / doc.zoom;
    const int h = (SelRect.Bottom - SelRect.Top) / doc.zoom;
    const int x = iconLeft(), y = iconTop();
    doc.PicSelImage.reset(w, h, kBlack);
    bitBlt(doc.PicSelImage, 0, 0, w, h, doc.PicImage, x, y, RasterOp::Copy);
    doc.PicSelMask.reset(w, h, kWhite);
    bitBlt(doc.PicSelMask, 0, 0, w, h, doc.PicMask, x, y, RasterOp::Copy);
}

void Selection::BeginMove() {
    context_.doc().clearToTransparent(SelRect.Left, SelRect.Top, SelRect.Right, SelRect.Bottom);
    // The refresh repaints the preview too, so it shows the cleared area.
    context_.refresh();
    SelMarked = false;
    SelFloating = true;
}

void Selection::EndSelectionMark() {
    if (!emptyFloating())
        drawMarquee();
    SelUnchanged = SelMarked && !MarkedChanged;
    MarkedChanged = false;
    SelMarked = false;
    SelFloating = false;
}

void Selection::CommitSelection() {
    EndSelectionMark();
    IconDocument& doc = context_.doc();
    const int x = iconLeft(), y = iconTop();
    const int w = doc.PicSelMask.width(), h = doc.PicSelMask.height();
    drawMasked(doc.PicImage, x, y, doc.PicSelMask, doc.PicSelImage);
    bitBlt(doc.PicMask, x, y, w, h, doc.PicSelMask, 0, 0, RasterOp::And);
    // A redraw, not a change: a selection that was only marked leaves the
    // document as unmodified as it was.
    context_.canvas().compose(doc);
    SelRect = Rect{};
    if (!SelUnchanged)
        context_.recordEdit();
    SelUnchanged = false;
}

void Selection::SelectAll() {
    context_.commitSelection();
    context_.chooseSelectTool();
    SelRect = Rect{0, 0, Canvas::kCanvasSize, Canvas::kCanvasSize};
    drawMarquee();
    LiftSelection();
    SelMarked = true;
}

void Selection::Delete(bool marked) {
    EndSelectionMark();
    if (marked)
        context_.doc().clearToTransparent(SelRect.Left, SelRect.Top, SelRect.Right, SelRect.Bottom);
    // Redrawn from the planes in both cases: dropped floating contents must
    // not stay on the canvas.
    context_.refresh();
    SelRect = Rect{};
    context_.recordEdit();
    context_.doc().modified = true;
}

void Selection::Cut() {
    // Intended order: Delete leaves the selection planes as they are, so Copy
    // still finds the cut contents there.
    Delete(SelMarked);
    Copy();
}

void Selection::Copy() {
    const IconDocument& doc = context_.doc();
    const int w = doc.PicSelMask.width(), h = doc.PicSelMask.height();
    // Over the white background transparent pixels come out white.
    PicClip.reset(w, h, kWhite);
    drawMasked(PicClip, 0, 0, doc.PicSelMask, doc.PicSelImage);
    context_.services().clipboard.setImage(PicClip);
}

void Selection::Paste(bool opaque) {
    // With no picture on the clipboard (the shortcut works while the menu
    // item is greyed) PicClip is empty and the paste goes on: the selection
    // is committed and an empty one floats, which draws and loses nothing.
    PicClip = context_.services().clipboard.image();
    // A picture without pixels is the empty picture, whatever size it
    // claims: it neither asks how to shrink nor stretches from nothing.
    if (PicClip.isEmpty())
        PicClip = Plane();
    const int cw = PicClip.width(), ch = PicClip.height();
    const int iw = context_.canvas().PicIcon.width(), ih = context_.canvas().PicIcon.height();
    if (cw > iw || ch > ih) {
        PasteChoice = dialogs_.choosePasteOption();
        context_.services().letEventsRun();
        if (PasteChoice != 0 && PasteChoice != 1)
            return;
        context_.commitSelection();
        const PasteFit size =
            PasteChoice == 0 ? PasteFit{iw, ih} : PasteFit::keepingAspect(cw, ch, iw, ih);
        PrepareFloating(size.width, size.height, true, opaque);
    } else {
        context_.commitSelection();
        PrepareFloating(cw, ch, false, opaque);
    }
    PlaceFloating();
    context_.doc().modified = true;
}

void Selection::PrepareFloating(int width, int height, bool stretch, bool opaque) {
    IconDocument& doc = context_.doc();
    // The clipboard picture at the selection's size, as every step below
    // samples it.
    Plane source(width, height, kWhite);
    if (stretch)
        stretchBlt(source, 0, 0, width, height, PicClip, 0, 0, PicClip.width(), PicClip.height(),
                   RasterOp::Copy);
    else
        bitBlt(source, 0, 0, width, height, PicClip, 0, 0, RasterOp::Copy);

    doc.PicSelMask.reset(width, height, kWhite);
    if (opaque) {
        doc.PicSelMask.fill(kBlack);
    } else {
        // The monochrome conversion: only PicClip's background colour, pure
        // white, becomes transparent.
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                doc.PicSelMask.setPixel(x, y, source.pixel(x, y) == kWhite ? kWhite : kBlack);
    }
    doc.PicSelImage = doc.PicSelMask;
    bitBlt(doc.PicSelImage, 0, 0, width, height, source, 0, 0, RasterOp::And);
    bitBlt(doc.PicSelImage, 0, 0, width, height, source, 0, 0, RasterOp::Xor);
}

void Selection::PlaceFloating() {
    const IconDocument& doc = context_.doc();
    SelRect = Rect{0, 0, doc.zoom * doc.PicSelMask.width(), doc.zoom * doc.PicSelMask.height()};
    context_.canvas().drawFloating(doc, SelRect.Left, SelRect.Top, SelRect.Right, SelRect.Bottom);
    // Floating only after the tool choice, whose commit must find nothing.
    context_.chooseSelectTool();
    SelFloating = true;
    if (!emptyFloating())
        drawMarquee();
}

void Selection::drawMarquee() {
    context_.canvas().drawSelectionRect(SelRect.Left, SelRect.Top, SelRect.Right, SelRect.Bottom);
}

void Selection::redrawFloating() {
    context_.canvas().refreshWithFloating(context_.doc(), SelRect.Left, SelRect.Top, SelRect.Right,
                                          SelRect.Bottom);
}
