#pragma once

#include "platform/Plane.h"

#include <optional>

class IconDocument;

// The two views of the document: the zoomed canvas PicMain (385 x 385, drawn
// through the 384 x 384 back buffer PicMainCopy) and the actual-size preview
// PicIcon. The widgets only put these planes on screen.
class Canvas {
  public:
    static constexpr int kCanvasSize = 384;
    static constexpr int kPictureSize = 385;
    // The point of the window's client area the preview is centred on.
    static constexpr int kPreviewCentreX = 456;
    static constexpr int kPreviewCentreY = 38;

    Canvas();

    // Sizes the preview to N x N, centres it on the preview box and clears it.
    void placePreview(int size);
    // Clears PicMain and PicMainCopy to white.
    void clear();

    // PicMainCopy: white, with the hatch inside every cell.
    void drawBackground(int zoom);
    // PicMain: the dotted grid on the first row and column of every cell and
    // on row and column 384.
    void drawGrid(int zoom);
    // PicMain := PicMainCopy, then the grid.
    void present(int zoom);

    // Composes back buffer, canvas and preview from the document's planes
    // without touching the document.
    void compose(const IconDocument& doc);
    // The preview alone, from the planes: a dragged selection is shown over
    // it without leaving a trail.
    void composePreview(const IconDocument& doc);
    // The redraw every change of the planes ends with: compose, and the
    // document is now modified.
    void refreshFromPlanes(IconDocument& doc);
    // Draws the floating selection planes over the canvas rectangle
    // (left, top)-(right, bottom) (canvas pixels) and over the preview at the
    // matching icon pixels, then the grid. The back buffer is left alone.
    void drawFloating(const IconDocument& doc, int left, int top, int right, int bottom);
    // The same without the grid.
    void stampFloating(const IconDocument& doc, int left, int top, int right, int bottom);
    // refreshFromPlanes, the floating selection over it, and its marquee. The
    // grid is not drawn again, so the selection shows without inner grid
    // lines until it is moved.
    void refreshWithFloating(IconDocument& doc, int left, int top, int right, int bottom);
    // The selection marquee: an inverting box 3 pixels wide on PicMain.
    // Drawing it twice removes it.
    void drawSelectionRect(int left, int top, int right, int bottom);

    // The pixel-level update of the freehand tools: the interior of the cell
    // whose corner is (cornerX, cornerY) on canvas and back buffer, in colour,
    // or as a transparent cell when colour is empty.
    void paintCell(int zoom, int cornerX, int cornerY, std::optional<Colour> colour);

    Plane PicMain;
    Plane PicMainCopy;
    Plane PicIcon;
    // The system button-face colour behind the preview; the shell sets it
    // from the running style.
    Colour buttonFace = kButtonFace;
    int previewLeft = 0;
    int previewTop = 0;

  private:
    // The hatched empty canvas of the last zoom drawn; every refresh starts
    // from it, so it is built once per zoom rather than cell by cell.
    Plane background_;
    int backgroundZoom_ = 0;
};
