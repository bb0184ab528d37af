#include "canvas/Canvas.h"

#include "canvas/Resources.h"
#include "document/IconDocument.h"
#include "platform/Raster.h"
#include "platform/Shapes.h"

Canvas::Canvas()
    : PicMain(kPictureSize, kPictureSize, kWhite), PicMainCopy(kCanvasSize, kCanvasSize, kWhite) {
    placePreview(32);
}

void Canvas::placePreview(int size) {
    PicIcon.reset(size, size, buttonFace);
    previewLeft = kPreviewCentreX - size / 2;
    previewTop = kPreviewCentreY - size / 2;
}

void Canvas::clear() {
    PicMain.fill(kWhite);
    PicMainCopy.fill(kWhite);
}

void Canvas::drawBackground(int zoom) {
    if (zoom != backgroundZoom_) {
        background_.reset(kCanvasSize, kCanvasSize, kWhite);
        const Plane& pattern = Resources::transparentPattern();
        for (int j = 0; j * zoom < kCanvasSize; ++j)
            for (int i = 0; i * zoom < kCanvasSize; ++i)
                bitBlt(background_, 1 + i * zoom, 1 + j * zoom, zoom - 2, zoom - 2, pattern, 0, 0,
                       RasterOp::Copy);
        backgroundZoom_ = zoom;
    }
    PicMainCopy = background_;
}

void Canvas::drawGrid(int zoom) {
    const Plane& across = Resources::horizontalGridLine();
    const Plane& down = Resources::verticalGridLine();
    for (int k = 0; k <= kCanvasSize; k += zoom) {
        bitBlt(PicMain, 0, k, kPictureSize, 1, across, 0, 0, RasterOp::Copy);
        bitBlt(PicMain, k, 0, 1, kPictureSize, down, 0, 0, RasterOp::Copy);
    }
}

void Canvas::present(int zoom) {
    bitBlt(PicMain, 0, 0, kCanvasSize, kCanvasSize, PicMainCopy, 0, 0, RasterOp::Copy);
    drawGrid(zoom);
}

void Canvas::compose(const IconDocument& doc) {
    drawBackground(doc.zoom);
    stretchMasked(PicMainCopy, 0, 0, kCanvasSize, kCanvasSize, doc.PicMask, doc.PicImage);
    present(doc.zoom);
    composePreview(doc);
}

void Canvas::composePreview(const IconDocument& doc) {
    PicIcon.fill(buttonFace);
    drawMasked(PicIcon, 0, 0, doc.PicMask, doc.PicImage);
}

void Canvas::refreshFromPlanes(IconDocument& doc) {
    compose(doc);
    doc.modified = true;
}

void Canvas::drawFloating(const IconDocument& doc, int left, int top, int right, int bottom) {
    stampFloating(doc, left, top, right, bottom);
    drawGrid(doc.zoom);
}

void Canvas::stampFloating(const IconDocument& doc, int left, int top, int right, int bottom) {
    stretchMasked(PicMain, left, top, right - left, bottom - top, doc.PicSelMask, doc.PicSelImage);
    drawMasked(PicIcon, left / doc.zoom, top / doc.zoom, doc.PicSelMask, doc.PicSelImage);
}

void Canvas::refreshWithFloating(IconDocument& doc, int left, int top, int right, int bottom) {
    refreshFromPlanes(doc);
    stampFloating(doc, left, top, right, bottom);
    drawSelectionRect(left, top, right, bottom);
}

void Canvas::drawSelectionRect(int left, int top, int right, int bottom) {
    drawBox(PicMain, left, top, right, bottom, Pen{kBlack, 3, PenMode::Invert});
}

void Canvas::paintCell(int zoom, int cornerX, int cornerY, std::optional<Colour> colour) {
    // The cell interior, inside the grid line.
    const int left = cornerX + 1, top = cornerY + 1;
    for (Plane* plane : {&PicMain, &PicMainCopy}) {
        fillBox(*plane, left, top, cornerX + zoom - 1, cornerY + zoom - 1, colour.value_or(kWhite));
        // A transparent cell looks as the background draws an empty one: the
        // hatch, with a white edge on the right and at the bottom.
        if (!colour)
            bitBlt(*plane, left, top, zoom - 2, zoom - 2, Resources::transparentPattern(), 0, 0,
                   RasterOp::Copy);
    }
}
