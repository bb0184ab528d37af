#pragma once

#include "support/EditorFixture.h"

// An editor with the vocabulary of the selection tests: painting straight
// into the planes, the Select tool on the canvas mouse, and the views as the
// planes alone would draw them.
class SelectionFixture : public EditorFixture {
  protected:
    // The Edit menu's items.
    enum Item {
        Undo = 0,
        Redo = 1,
        Cut = 3,
        Copy = 4,
        Paste = 5,
        PasteOpaque = 6,
        Delete = 7,
        Deselect = 9,
        SelectAll = 10
    };

    // Icon pixel (x, y) in colour c, opaque or inverting (mask white).
    void paint(int x, int y, Colour c, Colour mask = kBlack);
    // Shows the painted planes and records them, as an edit does.
    void recordPainting();
    // Drags the Select tool from canvas point (x1, y1) to (x2, y2).
    void mark(int x1, int y1, int x2, int y2);
    // Canvas and preview as a fresh canvas draws the document, with the
    // floating selection over it and the marquee around it when asked.
    void expectViews(bool withFloating, bool withMarquee) const;

    std::size_t undoSize() const { return editor->undoRedo.UndoStack.size(); }
    Selection& sel() { return editor->selection; }
    const Selection::Rect& rect() const { return editor->selection.SelRect; }
    const IconDocument& doc() const { return editor->doc; }
};

constexpr Colour kRed = rgb(255, 0, 0);
constexpr Colour kGreen = rgb(0, 255, 0);
constexpr Colour kBlue = rgb(0, 0, 255);
