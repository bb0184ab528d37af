#pragma once

#include "platform/Plane.h"

class EditContext;
class EditingDialogs;

// The one rectangular selection: marked (still part of the document) or
// floating (held only in the document's PicSelImage and PicSelMask), with the
// Edit menu's clipboard commands.
class Selection {
  public:
    // Canvas pixels, on the zoom grid; all -1 when there is no selection.
    struct Rect {
        int Left = -1, Top = -1, Right = -1, Bottom = -1;
    };

    Selection(EditContext& context, EditingDialogs& dialogs)
        : context_(context), dialogs_(dialogs) {}

    bool exists() const { return SelMarked || SelFloating; }
    // SelRect's top-left corner in icon pixels.
    int iconLeft() const;
    int iconTop() const;
    // A floating selection without pixels, which has no outline.
    bool emptyFloating() const;

    // Copies the SelRect area of both document planes into the selection
    // planes.
    void LiftSelection();
    // A marked selection starts to move: its area in the document becomes
    // transparent and the selection floats.
    void BeginMove();
    // Erases the marquee and ends the marked or floating state.
    void EndSelectionMark();
    // Stamps the selection planes into the document and ends the selection;
    // records an undo state unless the selection was only marked.
    void CommitSelection();

    void SelectAll();
    // marked: the selection is still part of the document, whose area is
    // cleared; otherwise the floating contents are dropped.
    void Delete(bool marked);
    void Cut();
    // Puts the selection planes on the clipboard, transparent as white.
    void Copy();
    // The clipboard picture becomes a floating selection at the top-left
    // corner; opaque keeps its white pixels instead of making them transparent.
    void Paste(bool opaque);

    // Builds the selection planes (width x height) from PicClip, stretched to
    // that size or copied from its top-left corner.
    void PrepareFloating(int width, int height, bool stretch, bool opaque);
    // Shows the floating selection at the icon's top-left corner and chooses
    // the Select tool.
    void PlaceFloating();

    // The marquee around SelRect, inverting: drawing it twice removes it.
    void drawMarquee();
    // Redraws the canvas from the planes with the floating selection and its
    // marquee over them (after an operation changed the selection planes).
    void redrawFloating();

    Rect SelRect;
    bool SelMarked = false;
    bool SelFloating = false;
    bool SelUnchanged = false;
    // An operation changed the planes of a marked selection, so its commit
    // is a change to record like that of a moved one.
    bool MarkedChanged = false;
    // The answer of the "Paste Options" dialog: -1 cancelled, 0 "Shrink To
    // Fit", 1 "Shrink To Fit (Keep Aspect)".
    int PasteChoice = -1;
    // Staging picture of the clipboard exchange (background white).
    Plane PicClip;

  private:
    EditContext& context_;
    EditingDialogs& dialogs_;
};
