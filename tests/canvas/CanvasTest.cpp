#include "canvas/Canvas.h"

#include "CanvasExpectations.h"
#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

using namespace CanvasExpectations;

TEST(CanvasTest, TheCanvasIs385SquareWithA384SquareBackBuffer) {
    const Canvas canvas;
    EXPECT_EQ(canvas.PicMain.width(), 385);
    EXPECT_EQ(canvas.PicMain.height(), 385);
    EXPECT_EQ(canvas.PicMainCopy.width(), 384);
    EXPECT_EQ(canvas.PicMainCopy.height(), 384);
    EXPECT_EQ(canvas.PicMain, Plane(385, 385, kWhite));
}

TEST(CanvasTest, TheBackgroundPutsTheHatchInsideEveryCellWithWhiteEdges) {
    for (const int zoom : {24, 12, 8}) {
        SCOPED_TRACE(zoom);
        Canvas canvas;
        canvas.PicMainCopy.fill(0x123456);
        canvas.drawBackground(zoom);
        for (int y = 0; y < 384; ++y)
            for (int x = 0; x < 384; ++x)
                ASSERT_EQ(canvas.PicMainCopy.pixel(x, y), background(x, y, zoom)) << x << "," << y;
    }
    // One cell of a 48 x 48 icon: a 6 x 6 square of the hatch.
    Canvas canvas;
    canvas.drawBackground(8);
    EXPECT_EQ(AsciiArt::fromPlane(canvas.PicMainCopy, AsciiArt::inkOnPaper(), 8, 16, 8, 8),
              AsciiArt::text({
                  "........",
                  ".######.",
                  "....#...",
                  "...#....",
                  "..#...#.",
                  ".#...#..",
                  "....#...",
                  "........",
              }));
    // A 16 x 16 icon's cell shows 22 x 22 of the 23 x 23 pattern: its black
    // bottom row stays out of sight.
    canvas.drawBackground(24);
    for (int x = 1; x <= 22; ++x)
        EXPECT_EQ(canvas.PicMainCopy.pixel(x, 1), kBlack) << x;
    EXPECT_EQ(canvas.PicMainCopy.pixel(5, 22), Resources::transparentPattern().pixel(4, 21));
    EXPECT_EQ(canvas.PicMainCopy.pixel(5, 23), kWhite);
}

TEST(CanvasTest, PresentingCopiesTheBackBufferAndDrawsTheDottedGrid) {
    for (const int zoom : {24, 12, 8}) {
        SCOPED_TRACE(zoom);
        Canvas canvas;
        canvas.PicMainCopy.fill(0x336699);
        canvas.present(zoom);
        // Grid lines on the first row and column of every cell and on 384.
        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const Colour under = x < 384 && y < 384 ? 0x336699 : kWhite;
                ASSERT_EQ(canvas.PicMain.pixel(x, y), withGrid(x, y, zoom, under)) << x << "," << y;
            }
        EXPECT_EQ(canvas.PicMain.pixel(384, 384), kBlack);
        EXPECT_EQ(canvas.PicMain.pixel(384, 1), kGridGrey);
        EXPECT_EQ(canvas.PicMain.pixel(1, 384), kGridGrey);
    }
}

TEST(CanvasTest, ClearWhitensBothPlanesAndThePreviewIsCentred) {
    Canvas canvas;
    canvas.drawBackground(8);
    canvas.present(8);
    canvas.clear();
    EXPECT_EQ(canvas.PicMain, Plane(385, 385, kWhite));
    EXPECT_EQ(canvas.PicMainCopy, Plane(384, 384, kWhite));
    for (const auto& [size, left, top] : {std::tuple{16, 448, 30}, {32, 440, 22}, {48, 432, 14}}) {
        canvas.placePreview(size);
        EXPECT_EQ(canvas.PicIcon, Plane(size, size, kButtonFace));
        EXPECT_EQ(canvas.previewLeft, left);
        EXPECT_EQ(canvas.previewTop, top);
    }
}

} // namespace
