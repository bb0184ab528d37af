#include "SelectionFixture.h"

void SelectionFixture::paint(int x, int y, Colour c, Colour mask) {
    editor->doc.PicImage.setPixel(x, y, c);
    editor->doc.PicMask.setPixel(x, y, mask);
}

void SelectionFixture::recordPainting() {
    editor->refresh();
    editor->recordEdit();
}

void SelectionFixture::mark(int x1, int y1, int x2, int y2) {
    if (editor->tools.currentTool != DrawingTools::Select)
        editor->tools.chooseTool(DrawingTools::Select);
    drag(1, {{x1, y1}, {x2, y2}});
}

void SelectionFixture::expectViews(bool withFloating, bool withMarquee) const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = rect();
    if (withFloating)
        canvas.drawFloating(doc(), r.Left, r.Top, r.Right, r.Bottom);
    if (withMarquee)
        canvas.drawSelectionRect(r.Left, r.Top, r.Right, r.Bottom);
    EXPECT_EQ(editor->canvas.PicMain, canvas.PicMain);
    EXPECT_EQ(editor->canvas.PicIcon, canvas.PicIcon);
}
