#pragma once

#include "canvas/Canvas.h"
#include "support/EditorFixture.h"

#include <string>

// A plane whose every pixel has a colour of its own, (x, y, 7).
inline Plane numberedPlane(int width, int height) {
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.setPixel(x, y, rgb(x, y, 7));
    return plane;
}

// The editor fixture with the vocabulary of the tool and editing tests: icon
// pixels as canvas points, and both planes as small pictures, '/' between
// rows, in letters: 'k' black, 'g' green, 'r' red, 'b' blue, 'c' cyan (all
// opaque), 'i' inverting red, 'T' transparent, '.' the picture's background
// letter.
class ToolsFixture : public EditorFixture {
  protected:
    static constexpr Colour kRed = 0x0000FF;
    static constexpr Colour kBlue = 0xFF0000;
    static constexpr Colour kGreen = 0x00FF00;
    static constexpr Colour kCyan = 0xFFFF00;
    using enum EditAction;

    int zoom() const { return editor->doc().zoom; }
    // A canvas coordinate inside the cell of icon pixel p, offset pixels from
    // the cell's corner (1 is just inside the grid line, zoom - 1 the far edge).
    int at(int p, int offset = 1) const { return p * zoom() + offset; }
    void click(int button, int x, int y) {
        press(button, at(x), at(y));
        release(button, at(x), at(y));
    }
    void setColours(Colour left, Colour right) {
        editor->colours().value = {static_cast<std::int32_t>(left),
                                   static_cast<std::int32_t>(right)};
    }
    // Icon pixel (x, y) in colour c, opaque or inverting (mask white).
    void paint(int x, int y, Colour c, Colour mask = kBlack) {
        editor->doc().PicImage.setPixel(x, y, c);
        editor->doc().PicMask.setPixel(x, y, mask);
    }
    // Drags the Select tool from canvas point (x1, y1) to (x2, y2).
    void mark(int x1, int y1, int x2, int y2);

    // Paints the whole icon in `background`, then the picture at (0, 0).
    void draw(const char* picture, char background);
    // A fresh icon of the size index showing the picture, recorded as the
    // first edit.
    void startWith(int sizeIndex, const char* picture, char background) {
        startWithSize(sizeIndex);
        draw(picture, background);
        editor->recordEdit();
    }
    // The block at (ox, oy) shows the picture and every pixel outside it the
    // background.
    void expectPicture(const char* picture, int ox, int oy, char background) const;
    // Canvas and preview as a fresh canvas draws the document, with the
    // floating selection over it and the marquee around it when asked.
    void expectViews(bool withFloating = false, bool withMarquee = false) const {
        expectCanvas(withFloating ? &Canvas::drawFloating : nullptr, withMarquee);
    }
    // Canvas and preview as an operation on a selection redraws them: the
    // selection over the document, no grid over it, and the marquee.
    void expectRedrawnSelection() const { expectCanvas(&Canvas::stampFloating, true); }
    // The menu items given, each as "+" enabled or "-".
    std::string enabling(std::initializer_list<EditAction> items = {
                             Cut, Copy, Paste, PasteOpaque, Delete, Deselect, SelectAll}) const;

    std::size_t undoSize() const { return editor->undoRedo().UndoStack.size(); }
    Selection& sel() { return editor->selection(); }
    const Selection::Rect& rect() const { return editor->selection().SelRect; }
    const IconDocument& doc() const { return editor->doc(); }

  private:
    using FloatingDraw = void (Canvas::*)(const IconDocument&, int, int, int, int);
    void expectCanvas(FloatingDraw drawSelection, bool withMarquee) const;
};
