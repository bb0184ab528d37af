#include "canvas/Canvas.h"

#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "support/AsciiArt.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00, kGrey = 0x808080;

// Pixel (x, y) of the planes over what lies under it: an opaque one shows its
// colour, any other inverts by its colour, which leaves a transparent (black)
// one unseen.
Colour over(Colour under, const Plane& mask, const Plane& image, int x, int y) {
    return mask.pixel(x, y) == kBlack ? image.pixel(x, y) : under ^ image.pixel(x, y);
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

// The selection is drawn over the canvas with the grid drawn again over it,
// or stamped without the grid; the marquee around it is a 3 pixel inverted
// box that a second drawing removes.
TEST(CanvasTest, EveryKindOfPixelAFloatingSelectionAndAPaintedCellLookAsTheyShould) {
    const AsciiArt::Palette colours{{'r', kRed}, {'g', kGreen}, {'k', kBlack}};
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        IconDocument doc;
        doc.resize(sizeIndex);
        const int n = doc.size, zoom = doc.zoom;
        SCOPED_TRACE(n);
        // (mask, colour) at a pixel, the rest transparent. Black and white
        // among the opaque pixels, white and a one-bit colour among the
        // inverting ones: a mixed-up operation shows.
        const std::tuple<int, int, Colour, Colour> pixels[] = {
            {0, 0, kBlack, kRed},        {1, 0, kBlack, kBlack}, {2, 0, kBlack, kWhite},
            {4, 0, kWhite, kGreen},      {5, 0, kWhite, kWhite}, {6, 0, kWhite, 0x000001},
            {0, 1, kBlack, kGrey},       {1, 2, kBlack, kGrey},  {n - 1, n - 1, kBlack, 0xFF0000},
            {n - 1, 0, kWhite, 0x0A0B0C}};
        for (const auto& [x, y, mask, colour] : pixels) {
            doc.PicMask.setPixel(x, y, mask);
            doc.PicImage.setPixel(x, y, colour);
        }
        // Floating at (1, 1): opaque red over a transparent pixel, inverting
        // green over the grey at (1, 2), transparent, and opaque black.
        doc.PicSelImage = AsciiArt::toPlane({"rk", "gk"}, colours);
        doc.PicSelMask = AsciiArt::toPlane({"#.", ".#"}, AsciiArt::inkOnPaper());
        const int left = zoom, top = zoom, right = 3 * zoom, bottom = 3 * zoom;
        Canvas canvas;
        canvas.placePreview(n);
        canvas.compose(doc);
        Canvas floating = canvas, stamped = canvas, marked = canvas;
        floating.drawFloating(doc, left, top, right, bottom);
        stamped.stampFloating(doc, left, top, right, bottom);
        marked.refreshWithFloating(doc, left, top, right, bottom);
        EXPECT_TRUE(doc.modified);

        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const bool inside = x < 384 && y < 384;
                const Colour back = inside ? over(background(x, y, zoom), doc.PicMask, doc.PicImage,
                                                  x / zoom, y / zoom)
                                           : kWhite;
                ASSERT_EQ(canvas.PicMainCopy.pixel(x, y), inside ? back : kInvalidColour);
                const Colour was = withGrid(x, y, zoom, back);
                ASSERT_EQ(canvas.PicMain.pixel(x, y), was) << x << "," << y;
                const int sx = x / zoom - 1, sy = y / zoom - 1;
                const Colour selection = x >= left && y >= top && x < right && y < bottom
                                             ? over(was, doc.PicSelMask, doc.PicSelImage, sx, sy)
                                             : was;
                ASSERT_EQ(stamped.PicMain.pixel(x, y), selection) << x << "," << y;
                ASSERT_EQ(floating.PicMain.pixel(x, y),
                          x % zoom == 0 || y % zoom == 0 ? was : selection)
                    << x << "," << y;
                // Within one pixel of the box's path, both corners included.
                const bool nearPath =
                    x >= left - 1 && x <= right + 1 && y >= top - 1 && y <= bottom + 1 &&
                    !(x >= left + 2 && x <= right - 2 && y >= top + 2 && y <= bottom - 2);
                ASSERT_EQ(marked.PicMain.pixel(x, y), nearPath ? selection ^ kWhite : selection)
                    << x << "," << y;
            }
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x) {
                const Colour icon = over(kButtonFace, doc.PicMask, doc.PicImage, x, y);
                ASSERT_EQ(canvas.PicIcon.pixel(x, y), icon) << x << "," << y;
                const bool under = x >= 1 && x < 3 && y >= 1 && y < 3;
                ASSERT_EQ(floating.PicIcon.pixel(x, y),
                          under ? over(icon, doc.PicSelMask, doc.PicSelImage, x - 1, y - 1) : icon)
                    << x << "," << y;
            }
        for (const Canvas* drawn : {&floating, &stamped, &marked}) {
            EXPECT_EQ(drawn->PicMainCopy, canvas.PicMainCopy);
            EXPECT_EQ(drawn->PicIcon, floating.PicIcon);
        }
        marked.drawSelectionRect(left, top, right, bottom);
        EXPECT_EQ(marked.PicMain, stamped.PicMain);

        // A painted cell shown again from the back buffer looks like a full
        // refresh; the tools' tests see it on the canvas before that.
        for (const std::optional<Colour> colour : {std::optional{kRed}, std::optional<Colour>{}}) {
            canvas.paintCell(zoom, 3 * zoom, 2 * zoom, colour);
            doc.PicImage.setPixel(3, 2, colour.value_or(kBlack));
            doc.PicMask.setPixel(3, 2, colour ? kBlack : kWhite);
            canvas.present(zoom);
            Canvas redrawn;
            redrawn.compose(doc);
            EXPECT_EQ(canvas.PicMain, redrawn.PicMain);
        }
    }
}

// The tools' readouts show a single digit padded; a pointer left of the
// canvas gives a negative cell, and a longer number must not be cut.
TEST(CoordinatesTest, ReadOutDigitsKeepALongerNumberWhole) {
    EXPECT_EQ(Coordinates::twoDigits(123), "123");
    EXPECT_EQ(Coordinates::twoDigits(-5), "-05");
}

} // namespace
