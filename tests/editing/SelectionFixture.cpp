#include "SelectionFixture.h"

void SelectionFixture::paint(int x, int y, Colour c) {
    editor->doc.PicImage.setPixel(x, y, c);
    editor->doc.PicMask.setPixel(x, y, kBlack);
}

void SelectionFixture::paintInverting(int x, int y, Colour c) {
    editor->doc.PicImage.setPixel(x, y, c);
    editor->doc.PicMask.setPixel(x, y, kWhite);
}

void SelectionFixture::recordPainting() {
    editor->refresh();
    editor->recordEdit();
}

void SelectionFixture::selectPress(int x, int y) {
    if (editor->tools.currentTool != DrawingTools::Select)
        editor->tools.chooseTool(DrawingTools::Select);
    editor->tools.select.mouseDown(x, y);
}

void SelectionFixture::selectMove(int x, int y) {
    editor->tools.select.mouseMove(x, y);
}
void SelectionFixture::selectRelease(int x, int y) {
    editor->tools.select.mouseUp(x, y);
}

void SelectionFixture::mark(int x1, int y1, int x2, int y2) {
    selectPress(x1, y1);
    selectMove(x2, y2);
    selectRelease(x2, y2);
}

Plane SelectionFixture::expectedCanvas(bool withFloating, bool withMarquee) const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = editor->selection.SelRect;
    if (withFloating)
        canvas.drawFloating(doc(), r.Left, r.Top, r.Right, r.Bottom);
    if (withMarquee)
        canvas.drawSelectionRect(r.Left, r.Top, r.Right, r.Bottom);
    return canvas.PicMain;
}

Plane SelectionFixture::expectedPreview(bool withFloating) const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = editor->selection.SelRect;
    if (withFloating)
        canvas.drawFloating(doc(), r.Left, r.Top, r.Right, r.Bottom);
    return canvas.PicIcon;
}

void SelectionFixture::putOnClipboard(int w, int h, Colour c) {
    clipboard.picture = Plane(w, h, c);
}
