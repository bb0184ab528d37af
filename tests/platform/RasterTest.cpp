#include "platform/Raster.h"

#include <gtest/gtest.h>

namespace {

// Every pixel a different value, so a wrong source pixel shows.
Plane numbered(int width, int height) {
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.setPixel(x, y, static_cast<Colour>(0x100000 + 0x100 * y + x));
    return plane;
}

constexpr Colour kUntouched = 0x5A5A5A;

TEST(RasterTest, RasterOperationsCombineBitwise) {
    EXPECT_EQ(applyRasterOp(0x123456, 0xABCDEF, RasterOp::Copy), 0xABCDEFu);
    EXPECT_EQ(applyRasterOp(0x123456, 0xABCDEF, RasterOp::And), 0x020446u);
    EXPECT_EQ(applyRasterOp(0x123456, 0xABCDEF, RasterOp::Xor), 0xB9F9B9u);
}

TEST(RasterTest, BlockCopyClipsAtEveryEdgeOfBothPlanes) {
    const Plane src = numbered(4, 4);
    const struct {
        const char* name;
        int dx, dy, w, h, sx, sy;
    } cases[] = {
        {"inside", 1, 1, 3, 2, 0, 1},
        {"off the left and top", -2, -1, 4, 4, 0, 0},
        {"off the right and bottom", 4, 3, 4, 4, 0, 0},
        {"source partly before its plane", 0, 0, 4, 4, -2, -1},
        {"source partly past its plane", 0, 0, 4, 4, 2, 3},
        {"source wholly outside", 0, 0, 3, 3, 4, 0},
        {"destination wholly outside", 6, 0, 3, 3, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Plane dst(6, 5, kUntouched);
        bitBlt(dst, c.dx, c.dy, c.w, c.h, src, c.sx, c.sy, RasterOp::Copy);
        for (int y = 0; y < dst.height(); ++y)
            for (int x = 0; x < dst.width(); ++x) {
                const int u = x - c.dx + c.sx, v = y - c.dy + c.sy;
                const bool inBlock = x >= c.dx && x < c.dx + c.w && y >= c.dy && y < c.dy + c.h;
                const bool fromSource = inBlock && u >= 0 && u < 4 && v >= 0 && v < 4;
                const Colour expected = fromSource ? 0x100000 + 0x100 * v + u : kUntouched;
                ASSERT_EQ(dst.pixel(x, y), expected) << x << "," << y;
            }
    }
}

TEST(RasterTest, AndThenXorComposesTheIconPixelKinds) {
    // Background, mask and colour of an opaque, a transparent and an
    // inverting pixel: the result is (background AND mask) XOR colour.
    Plane background(3, 1, 0x336699);
    Plane mask(3, 1), colour(3, 1);
    mask.setPixel(0, 0, kBlack), colour.setPixel(0, 0, 0x0000FF);
    mask.setPixel(1, 0, kWhite), colour.setPixel(1, 0, kBlack);
    mask.setPixel(2, 0, kWhite), colour.setPixel(2, 0, 0x00FF00);
    bitBlt(background, 0, 0, 3, 1, mask, 0, 0, RasterOp::And);
    bitBlt(background, 0, 0, 3, 1, colour, 0, 0, RasterOp::Xor);
    EXPECT_EQ(background.pixel(0, 0), 0x0000FFu);
    EXPECT_EQ(background.pixel(1, 0), 0x336699u);
    EXPECT_EQ(background.pixel(2, 0), 0x339999u);

    // XOR twice gives the picture back.
    bitBlt(background, 0, 0, 3, 1, colour, 0, 0, RasterOp::Xor);
    EXPECT_EQ(background.pixel(2, 0), 0x336699u);
}

TEST(RasterTest, StretchingUpMakesEachPixelAZoomBlock) {
    for (const auto& [n, zoom] : {std::pair{16, 24}, {32, 12}, {48, 8}}) {
        SCOPED_TRACE(zoom);
        const Plane src = numbered(n, n);
        Plane dst(385, 385, kUntouched);
        stretchBlt(dst, 0, 0, 384, 384, src, 0, 0, n, n, RasterOp::Copy);
        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const Colour expected =
                    x < 384 && y < 384 ? src.pixel(x / zoom, y / zoom) : kUntouched;
                ASSERT_EQ(dst.pixel(x, y), expected) << x << "," << y;
            }
    }
}

TEST(RasterTest, StretchingUpCombinesWithAndAndXor) {
    const Plane src = numbered(2, 2);
    Plane anded(4, 4, 0xFF00FF), xored(4, 4, 0xFF00FF);
    stretchBlt(anded, 0, 0, 4, 4, src, 0, 0, 2, 2, RasterOp::And);
    stretchBlt(xored, 0, 0, 4, 4, src, 0, 0, 2, 2, RasterOp::Xor);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(anded.pixel(x, y), src.pixel(x / 2, y / 2) & 0xFF00FF);
            EXPECT_EQ(xored.pixel(x, y), src.pixel(x / 2, y / 2) ^ 0xFF00FF);
        }
}

TEST(RasterTest, StretchingDownTakesTheFirstPixelOfEachBlock) {
    const Plane src = numbered(384, 384);
    for (const int n : {16, 32, 48}) {
        SCOPED_TRACE(n);
        const int zoom = 384 / n;
        Plane dst(n, n);
        stretchBlt(dst, 0, 0, n, n, src, 0, 0, 384, 384, RasterOp::Copy);
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                ASSERT_EQ(dst.pixel(x, y), src.pixel(x * zoom, y * zoom)) << x << "," << y;
    }
    // Not a whole factor: destination pixel i samples source pixel i * 5 / 3.
    Plane row(3, 1);
    stretchBlt(row, 0, 0, 3, 1, numbered(5, 1), 0, 0, 5, 1, RasterOp::Copy);
    EXPECT_EQ(row.pixel(0, 0), 0x100000u);
    EXPECT_EQ(row.pixel(1, 0), 0x100001u);
    EXPECT_EQ(row.pixel(2, 0), 0x100003u);
}

TEST(RasterTest, FlippingAPlaneOntoItselfGivesTheTrueMirror) {
    // Odd and even sizes: a half-overwritten flip shows in the second half.
    for (const auto& [w, h] : {std::pair{5, 3}, {6, 4}, {48, 48}}) {
        SCOPED_TRACE(w);
        const Plane original = numbered(w, h);

        Plane across = original;
        stretchBlt(across, 0, 0, w, h, across, w - 1, 0, -w, h, RasterOp::Copy);
        Plane down = original;
        stretchBlt(down, 0, 0, w, h, down, 0, h - 1, w, -h, RasterOp::Copy);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                ASSERT_EQ(across.pixel(x, y), original.pixel(w - 1 - x, y)) << x << "," << y;
                ASSERT_EQ(down.pixel(x, y), original.pixel(x, h - 1 - y)) << x << "," << y;
            }
    }
}

TEST(RasterTest, NegativeExtentsMirrorOnEitherSideAndWhenStretching) {
    const Plane src = numbered(3, 1);
    const Colour a = src.pixel(0, 0), b = src.pixel(1, 0), c = src.pixel(2, 0);
    const struct {
        const char* name;
        int dx, dw, sx, sw;
        Colour expected[6];
    } cases[] = {
        {"negative destination", 2, -3, 0, 3, {c, b, a, kUntouched, kUntouched, kUntouched}},
        {"negative source", 0, 3, 2, -3, {c, b, a, kUntouched, kUntouched, kUntouched}},
        {"both negative: no mirror", 3, -3, 2, -3, {kUntouched, a, b, c, kUntouched, kUntouched}},
        {"mirrored while doubling", 5, -6, 0, 3, {c, c, b, b, a, a}},
        {"partly off the left edge",
         1,
         -3,
         0,
         3,
         {b, a, kUntouched, kUntouched, kUntouched, kUntouched}},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(t.name);
        Plane dst(6, 1, kUntouched);
        stretchBlt(dst, t.dx, 0, t.dw, 1, src, t.sx, 0, t.sw, 1, RasterOp::Copy);
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(dst.pixel(x, 0), t.expected[x]) << x;
    }
}

TEST(RasterTest, ReflectingOneHalfOverTheOtherKeepsTheSourceHalf) {
    const Plane original = numbered(6, 2);
    Plane plane = original;
    // Left in right: columns 3, 4, 5 become columns 2, 1, 0.
    stretchBlt(plane, 3, 0, 3, 2, plane, 2, 0, -3, 2, RasterOp::Copy);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(plane.pixel(x, y), original.pixel(x < 3 ? x : 5 - x, y)) << x;
}

TEST(RasterTest, APlaneStretchedOrShiftedOntoItselfReadsTheOldPixels) {
    const Plane original = numbered(8, 6);

    Plane grown = original;
    stretchBlt(grown, 0, 0, 8, 6, grown, 0, 0, 4, 3, RasterOp::Copy);
    Plane shifted = original;
    bitBlt(shifted, 1, 1, 7, 5, shifted, 0, 0, RasterOp::Copy);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x) {
            EXPECT_EQ(grown.pixel(x, y), original.pixel(x / 2, y / 2)) << x << "," << y;
            const Colour moved =
                x == 0 || y == 0 ? original.pixel(x, y) : original.pixel(x - 1, y - 1);
            EXPECT_EQ(shifted.pixel(x, y), moved) << x << "," << y;
        }
}

TEST(RasterTest, ZeroExtentsAndEmptyPlanesTransferNothing) {
    const Plane src = numbered(4, 4);
    Plane dst(4, 4, kUntouched);
    stretchBlt(dst, 0, 0, 0, 4, src, 0, 0, 4, 4, RasterOp::Copy);
    stretchBlt(dst, 0, 0, 4, 0, src, 0, 0, 4, 4, RasterOp::Copy);
    stretchBlt(dst, 0, 0, 4, 4, src, 0, 0, 0, 4, RasterOp::Copy);
    stretchBlt(dst, 0, 0, 4, 4, Plane(), 0, 0, 4, 4, RasterOp::Copy);
    EXPECT_EQ(dst, Plane(4, 4, kUntouched));
}

TEST(RasterTest, FillRectIsHalfOpenAndClipped) {
    const struct {
        const char* name;
        int left, top, right, bottom;
        int expectedLeft, expectedTop, expectedRight, expectedBottom; // half-open
    } cases[] = {
        {"inside", 1, 2, 3, 4, 1, 2, 3, 4},
        {"over every edge", -3, -3, 9, 9, 0, 0, 5, 5},
        {"empty", 2, 2, 2, 4, 0, 0, 0, 0},
        {"inside out", 4, 1, 1, 3, 0, 0, 0, 0},
        {"wholly right of the plane", 7, 0, 9, 3, 0, 0, 0, 0},
        {"wholly left of the plane", -9, 0, -7, 3, 0, 0, 0, 0},
        {"wholly below the plane", 0, 6, 3, 9, 0, 0, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Plane plane(5, 5, kUntouched);
        fillRect(plane, c.left, c.top, c.right, c.bottom, 0x112233);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 5; ++x) {
                const bool filled = x >= c.expectedLeft && x < c.expectedRight &&
                                    y >= c.expectedTop && y < c.expectedBottom;
                ASSERT_EQ(plane.pixel(x, y), filled ? 0x112233 : kUntouched) << x << "," << y;
            }
    }
}

TEST(RasterTest, PixelsOutsideAPlaneReadInvalidAndIgnoreWrites) {
    Plane plane(3, 2, kWhite);
    for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        EXPECT_EQ(plane.pixel(x, y), kInvalidColour);
        plane.setPixel(x, y, kBlack);
    }
    EXPECT_EQ(plane, Plane(3, 2, kWhite));
    plane.reset(-4, 2, kBlack);
    EXPECT_TRUE(plane.isEmpty());
}

} // namespace
