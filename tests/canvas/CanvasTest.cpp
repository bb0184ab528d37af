#include "canvas/Canvas.h"

#include "document/IconDocument.h"
#include "platform/Shapes.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace {

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00, kGrey = 0x808080;

bool onGrid(int x, int y, int zoom) {
    return x % zoom == 0 || y % zoom == 0;
}

// An icon pixel over what lies under it: an opaque one shows its colour, any
// other inverts by its colour, which leaves a transparent (black) one unseen.
Colour over(Colour under, Colour mask, Colour colour) {
    return mask == kBlack ? colour : under ^ colour;
}

// The empty back buffer: a white first and last row and column in each cell,
// the hatch in between: a black top row, then a diagonal every fourth pixel
// rising to the right.
Colour background(int x, int y, int zoom) {
    const int ox = x % zoom, oy = y % zoom;
    if (ox == 0 || oy == 0 || ox == zoom - 1 || oy == zoom - 1)
        return kWhite;
    return oy == 1 || (ox + oy) % 4 == 2 ? kBlack : kWhite;
}

// PicMain over back buffer pixel b: the dotted grid on the first row and
// column of every cell, black at even coordinates and light grey between.
Colour withGrid(int x, int y, int zoom, Colour b) {
    const Colour grey = rgb(192, 192, 192);
    if (y % zoom == 0)
        return x % 2 == 0 ? kBlack : grey;
    if (x % zoom == 0)
        return y % 2 == 0 ? kBlack : grey;
    return b;
}

TEST(CanvasTest, EveryKindOfPixelAndAPaintedCellLookAsTheyShould) {
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        IconDocument doc;
        doc.resize(sizeIndex);
        const int n = doc.size, zoom = doc.zoom;
        SCOPED_TRACE(n);
        // (mask, colour) at a pixel, the rest transparent. Black and white
        // among the opaque pixels, white and a one-bit colour among the
        // inverting ones: a mixed-up operation shows.
        const std::map<std::pair<int, int>, std::pair<Colour, Colour>> pixels{
            {{0, 0}, {kBlack, kRed}},        {{1, 0}, {kBlack, kBlack}},
            {{2, 0}, {kBlack, kWhite}},      {{4, 0}, {kWhite, kGreen}},
            {{5, 0}, {kWhite, kWhite}},      {{6, 0}, {kWhite, 0x000001}},
            {{0, 1}, {kBlack, kGrey}},       {{n - 1, n - 1}, {kBlack, 0xFF0000}},
            {{n - 1, 0}, {kWhite, 0x0A0B0C}}};
        for (const auto& [at, pixel] : pixels) {
            doc.PicMask.setPixel(at.first, at.second, pixel.first);
            doc.PicImage.setPixel(at.first, at.second, pixel.second);
        }
        const auto look = [&](int x, int y, Colour under) {
            return over(under, doc.PicMask.pixel(x, y), doc.PicImage.pixel(x, y));
        };
        Canvas canvas;
        canvas.placePreview(n);
        canvas.compose(doc);

        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const bool inside = x < 384 && y < 384;
                const Colour back =
                    inside ? look(x / zoom, y / zoom, background(x, y, zoom)) : kWhite;
                ASSERT_EQ(canvas.PicMainCopy.pixel(x, y), inside ? back : kInvalidColour);
                ASSERT_EQ(canvas.PicMain.pixel(x, y), withGrid(x, y, zoom, back)) << x << "," << y;
            }
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                ASSERT_EQ(canvas.PicIcon.pixel(x, y), look(x, y, kButtonFace)) << x << "," << y;
        // Painting a cell looks like a full refresh, and so does the back
        // buffer where the grid does not cover it, when shown again.
        for (const std::optional<Colour> colour : {std::optional{kRed}, std::optional<Colour>{}}) {
            canvas.paintCell(zoom, 3 * zoom, 2 * zoom, colour);
            doc.PicImage.setPixel(3, 2, colour.value_or(kBlack));
            doc.PicMask.setPixel(3, 2, colour ? kBlack : kWhite);
            Canvas redrawn;
            redrawn.compose(doc);
            EXPECT_EQ(canvas.PicMain, redrawn.PicMain);
            canvas.present(zoom);
            EXPECT_EQ(canvas.PicMain, redrawn.PicMain);
        }
    }
}

// The selection is drawn over the canvas with the grid drawn again over it,
// or stamped without the grid; the marquee around it is a 3 pixel inverted
// box that a second drawing removes.
TEST(CanvasTest, AFloatingSelectionAndItsMarqueeAreDrawnOverTheViews) {
    // A 16 x 16 document, opaque grey on its left half, transparent on the
    // right, with a 2 x 2 floating selection: opaque red and black on the
    // diagonal from (0, 0), inverting green at (0, 1), transparent at (1, 0).
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
    Canvas before;
    before.placePreview(16);
    doc.modified = false;
    before.refreshFromPlanes(doc);
    EXPECT_TRUE(doc.modified);
    Canvas floating = before, stamped = before, marked = before;
    // Across the grey and transparent halves.
    const int left = 7 * 24, top = 4 * 24, right = left + 48, bottom = top + 48;
    floating.drawFloating(doc, left, top, right, bottom);
    stamped.stampFloating(doc, left, top, right, bottom);
    marked.refreshWithFloating(doc, left, top, right, bottom);

    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x) {
            const int sx = (x - left) / 24, sy = (y - top) / 24;
            const bool inside = x >= left && y >= top && sx < 2 && sy < 2;
            const Colour was = before.PicMain.pixel(x, y);
            const Colour selection =
                inside ? over(was, doc.PicSelMask.pixel(sx, sy), doc.PicSelImage.pixel(sx, sy))
                       : was;
            ASSERT_EQ(stamped.PicMain.pixel(x, y), selection) << x << "," << y;
            ASSERT_EQ(floating.PicMain.pixel(x, y), onGrid(x, y, 24) ? was : selection)
                << x << "," << y;
            // Within one pixel of the box's path, both corners included.
            const bool nearPath =
                x >= left - 1 && x <= right + 1 && y >= top - 1 && y <= bottom + 1 &&
                !(x >= left + 2 && x <= right - 2 && y >= top + 2 && y <= bottom - 2);
            ASSERT_EQ(marked.PicMain.pixel(x, y), nearPath ? selection ^ kWhite : selection)
                << x << "," << y;
        }
    Plane preview = before.PicIcon;
    preview.setPixel(7, 4, kRed);
    preview.setPixel(7, 5, kGrey ^ kGreen);
    preview.setPixel(8, 5, kBlack);
    for (const Canvas* drawn : {&floating, &stamped, &marked}) {
        EXPECT_EQ(drawn->PicMainCopy, before.PicMainCopy);
        EXPECT_EQ(drawn->PicIcon, preview);
    }
    marked.drawSelectionRect(left, top, right, bottom);
    EXPECT_EQ(marked.PicMain, stamped.PicMain);
}

} // namespace
