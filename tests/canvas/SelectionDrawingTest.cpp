#include "canvas/Canvas.h"

#include "document/IconDocument.h"
#include "platform/Shapes.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

bool onGrid(int x, int y, int zoom) {
    return x % zoom == 0 || y % zoom == 0;
}

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00, kGrey = 0x808080;

// A 16 x 16 document, opaque grey on its left half, transparent on the right,
// with a 2 x 2 floating selection: opaque red and black on the diagonal from
// (0, 0), inverting green at (0, 1), transparent at (1, 0).
IconDocument documentWithSelection() {
    IconDocument doc;
    doc.resize(0);
    fillBox(doc.PicImage, 0, 0, 7, 15, kGrey);
    fillBox(doc.PicMask, 0, 0, 7, 15, kBlack);
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
    doc.modified = false;
    canvas.refreshFromPlanes(doc);
    EXPECT_TRUE(doc.modified);
    const Canvas before = canvas;

    // Across the grey and transparent halves.
    const int left = 7 * 24, top = 4 * 24;
    canvas.drawFloating(doc, left, top, left + 48, top + 48);

    EXPECT_EQ(canvas.PicMainCopy, before.PicMainCopy);
    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x) {
            const int sx = (x - left) / 24, sy = (y - top) / 24;
            const bool over = x >= left && y >= top && sx < 2 && sy < 2 && !onGrid(x, y, 24);
            const Colour was = before.PicMain.pixel(x, y);
            const Colour mask = doc.PicSelMask.pixel(sx, sy),
                         colour = doc.PicSelImage.pixel(sx, sy);
            const Colour expected = !over ? was : mask == kBlack ? colour : was ^ colour;
            ASSERT_EQ(canvas.PicMain.pixel(x, y), expected) << x << "," << y;
        }
    Plane preview = before.PicIcon;
    preview.setPixel(7, 4, kRed);
    preview.setPixel(7, 5, kGrey ^ kGreen);
    preview.setPixel(8, 5, kBlack);
    EXPECT_EQ(canvas.PicIcon, preview);
}

TEST(SelectionDrawingTest, TheMarqueeIsAThreePixelInvertedBoxThatASecondDrawingRemoves) {
    IconDocument doc = documentWithSelection();
    const int left = 72, top = 96, right = 120, bottom = 144;
    Canvas plain;
    plain.refreshFromPlanes(doc);
    plain.stampFloating(doc, left, top, right, bottom);
    Canvas marked;
    marked.refreshWithFloating(doc, left, top, right, bottom);
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
        const int z = doc.zoom;
        SCOPED_TRACE(z);
        Canvas painted, redrawn;
        painted.refreshFromPlanes(doc);
        for (const std::optional<Colour> colour : {std::optional{kRed}, std::optional<Colour>{}}) {
            painted.paintCell(z, 3 * z, 2 * z, colour);
            doc.PicImage.setPixel(3, 2, colour.value_or(kBlack));
            doc.PicMask.setPixel(3, 2, colour ? kBlack : kWhite);
            redrawn.refreshFromPlanes(doc);
            EXPECT_EQ(painted.PicMain, redrawn.PicMain);
            // The back buffer agrees too, but under the grid, which always
            // covers it.
            for (int y = 0; y < 384; ++y)
                for (int x = 0; x < 384; ++x)
                    ASSERT_TRUE(onGrid(x, y, z) ||
                                painted.PicMainCopy.pixel(x, y) == redrawn.PicMainCopy.pixel(x, y))
                        << x << "," << y;
        }
    }
}

} // namespace
