#pragma once

#include "support/EditorFixture.h"

// An editor with helpers for the selection tests: painting set-ups, the
// Select tool's mouse in canvas pixels, and the canvas as the planes alone
// would draw it.
class SelectionFixture : public EditorFixture {
  protected:
    // Paints icon pixel (x, y) opaque in colour c, straight into the planes.
    void paint(int x, int y, Colour c);
    // Makes icon pixel (x, y) inverting: mask white, colour c.
    void paintInverting(int x, int y, Colour c);
    // Shows the painted planes and records them, as an edit does.
    void recordPainting();

    // The Select tool's mouse, after choosing the tool.
    void selectPress(int x, int y);
    void selectMove(int x, int y);
    void selectRelease(int x, int y);
    // Marks the canvas rectangle from (x1, y1) to (x2, y2).
    void mark(int x1, int y1, int x2, int y2);

    // PicMain as a canvas of its own draws the document, with the floating
    // selection over it and the marquee around it when asked.
    Plane expectedCanvas(bool withFloating, bool withMarquee) const;
    Plane expectedPreview(bool withFloating) const;

    // The clipboard holds a w x h picture filled with c.
    void putOnClipboard(int w, int h, Colour c);

    std::size_t undoSize() const { return editor->undoRedo.UndoStack.size(); }
    Selection& sel() { return editor->selection; }
    const IconDocument& doc() const { return editor->doc; }
};

constexpr Colour kRed = rgb(255, 0, 0);
constexpr Colour kGreen = rgb(0, 255, 0);
constexpr Colour kBlue = rgb(0, 0, 255);
