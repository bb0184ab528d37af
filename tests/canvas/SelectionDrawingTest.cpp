#include "canvas/Canvas.h"

#include "CanvasExpectations.h"
#include "document/IconDocument.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace CanvasExpectations;

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00, kGrey = 0x808080;

// A 16 x 16 document, opaque grey on its left half, transparent on the right,
// with a 2 x 2 floating selection: opaque red, transparent, inverting green,
// opaque black.
IconDocument documentWithSelection() {
    IconDocument doc;
    doc.resize(0);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 8; ++x) {
            doc.PicImage.setPixel(x, y, kGrey);
            doc.PicMask.setPixel(x, y, kBlack);
        }
    doc.PicSelImage.reset(2, 2, kBlack);
    doc.PicSelMask.reset(2, 2, kBlack);
    doc.PicSelImage.setPixel(0, 0, kRed);
    doc.PicSelMask.setPixel(1, 0, kWhite);
    doc.PicSelImage.setPixel(0, 1, kGreen);
    doc.PicSelMask.setPixel(0, 1, kWhite);
    return doc;
}

TEST(SelectionDrawingTest, AFloatingSelectionIsComposedOverTheCanvasAndPreview) {
    IconDocument doc = documentWithSelection();
    Canvas canvas;
    canvas.placePreview(16);
    canvas.refreshFromPlanes(doc);
    const Canvas before = canvas;

    // Icon pixels (7, 4) to (8, 5): across the grey and transparent halves.
    const int left = 7 * 24, top = 4 * 24;
    canvas.drawFloating(doc, left, top, left + 48, top + 48);

    EXPECT_EQ(canvas.PicMainCopy, before.PicMainCopy);
    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x) {
            const Colour was = before.PicMain.pixel(x, y);
            Colour expected = was;
            if (x >= left && x < left + 48 && y >= top && y < top + 48 && !onGrid(x, y, 24)) {
                const int sx = (x - left) / 24, sy = (y - top) / 24;
                const Colour mask = doc.PicSelMask.pixel(sx, sy);
                const Colour colour = doc.PicSelImage.pixel(sx, sy);
                expected = mask == kBlack ? colour : (was ^ colour);
            }
            ASSERT_EQ(canvas.PicMain.pixel(x, y), expected) << x << "," << y;
        }
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            const Colour was = before.PicIcon.pixel(x, y);
            Colour expected = was;
            if (x == 7 && y == 4)
                expected = kRed;
            if (x == 7 && y == 5)
                expected = kGrey ^ kGreen;
            if (x == 8 && y == 5)
                expected = kBlack;
            ASSERT_EQ(canvas.PicIcon.pixel(x, y), expected) << x << "," << y;
        }
}

TEST(SelectionDrawingTest, TheMarqueeIsAThreePixelInvertedBoxThatASecondDrawingRemoves) {
    IconDocument doc = documentWithSelection();
    const int left = 72, top = 96, right = 120, bottom = 144;
    Canvas plain;
    plain.refreshFromPlanes(doc);
    plain.drawFloating(doc, left, top, right, bottom);
    Canvas marked;
    doc.modified = false;
    marked.refreshWithFloating(doc, left, top, right, bottom);
    EXPECT_TRUE(doc.modified);
    EXPECT_EQ(marked.PicMainCopy, plain.PicMainCopy);
    EXPECT_EQ(marked.PicIcon, plain.PicIcon);

    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x) {
            // Within one pixel of the box's path, both corners included.
            const bool nearPath =
                x >= left - 1 && x <= right + 1 && y >= top - 1 && y <= bottom + 1 &&
                !(x >= left + 2 && x <= right - 2 && y >= top + 2 && y <= bottom - 2);
            const Colour was = plain.PicMain.pixel(x, y);
            ASSERT_EQ(marked.PicMain.pixel(x, y), nearPath ? was ^ kWhite : was) << x << "," << y;
        }

    marked.drawSelectionRect(left, top, right, bottom);
    EXPECT_EQ(marked.PicMain, plain.PicMain);
}

TEST(SelectionDrawingTest, PaintingACellLooksLikeAFullRefresh) {
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        IconDocument doc;
        doc.resize(sizeIndex);
        const int z = doc.zoom, cx = 3, cy = 2;
        SCOPED_TRACE(z);
        Canvas painted;
        painted.refreshFromPlanes(doc);

        // Opaque: the freehand tool's cell against a redraw of the planes.
        painted.paintCell(z, cx * z, cy * z, kRed);
        doc.PicImage.setPixel(cx, cy, kRed);
        doc.PicMask.setPixel(cx, cy, kBlack);
        Canvas redrawn;
        redrawn.refreshFromPlanes(doc);
        EXPECT_EQ(painted.PicMain, redrawn.PicMain);

        // Back to transparent over the painted cell.
        painted.paintCell(z, cx * z, cy * z, std::nullopt);
        doc.PicImage.setPixel(cx, cy, kBlack);
        doc.PicMask.setPixel(cx, cy, kWhite);
        redrawn.refreshFromPlanes(doc);
        EXPECT_EQ(painted.PicMain, redrawn.PicMain);
        // The back buffer agrees too, but for the cell's grid row and column,
        // which the grid always covers on screen.
        for (int y = 0; y < 384; ++y)
            for (int x = 0; x < 384; ++x)
                if (!onGrid(x, y, z)) {
                    ASSERT_EQ(painted.PicMainCopy.pixel(x, y), redrawn.PicMainCopy.pixel(x, y))
                        << x << "," << y;
                }
    }
}

} // namespace
