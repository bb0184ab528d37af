#include "platform/Raster.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using AsciiArt::fromPlane;
using AsciiArt::text;
using AsciiArt::toPlane;

// Every pixel a different value, so a wrong source pixel shows.
Plane numbered(int width, int height) {
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.setPixel(x, y, static_cast<Colour>(0x100000 + 0x100 * y + x));
    return plane;
}

constexpr Colour kUntouched = 0x5A5A5A;

// Letters for pixels of different colours, '.' for an untouched one.
const AsciiArt::Palette& letters() {
    static const AsciiArt::Palette palette = [] {
        AsciiArt::Palette p{{'.', kUntouched}};
        for (char c = 'a'; c <= 'o'; ++c)
            p[c] = static_cast<Colour>(0x100000 + c);
        return p;
    }();
    return palette;
}

TEST(RasterTest, BlockCopyClipsAtEveryEdgeOfBothPlanes) {
    const Plane src = toPlane({"abc", "def", "ghi"}, letters());
    const struct {
        const char* name;
        int dx, dy, w, h, sx, sy;
        std::string expected;
    } cases[] = {
        {"inside", 1, 1, 2, 2, 0, 0, text({"....", ".ab.", ".de."})},
        {"off the left and top", -1, -1, 3, 3, 0, 0, text({"ef..", "hi..", "...."})},
        {"off the right and bottom", 2, 1, 3, 3, 0, 0, text({"....", "..ab", "..de"})},
        {"source partly before its plane", 0, 0, 3, 3, -1, -1, text({"....", ".ab.", ".de."})},
        {"source partly past its plane", 0, 0, 3, 3, 1, 2, text({"hi..", "....", "...."})},
        {"destination just outside", 4, 0, 3, 3, 0, 0, text({"....", "....", "...."})},
        {"destination far right", 9, 0, 3, 3, 0, 0, text({"....", "....", "...."})},
        {"destination far left", -5, 0, 3, 3, 0, 0, text({"....", "....", "...."})},
        {"source far outside", 0, 0, 3, 3, 7, 7, text({"....", "....", "...."})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Plane dst(4, 3, kUntouched);
        bitBlt(dst, c.dx, c.dy, c.w, c.h, src, c.sx, c.sy, RasterOp::Copy);
        EXPECT_EQ(fromPlane(dst, letters()), c.expected);
    }
}

TEST(RasterTest, NearestStretchMakesZoomBlocksAndSamplesTheFirstPixelOfABlock) {
    const Plane big = numbered(384, 384);
    for (const auto& [n, zoom] : {std::pair{16, 24}, {32, 12}, {48, 8}}) {
        SCOPED_TRACE(zoom);
        const Plane src = numbered(n, n);
        Plane up(385, 385, kUntouched);
        stretchBlt(up, 0, 0, 384, 384, src, 0, 0, n, n, RasterOp::Copy);
        Plane down(n, n);
        stretchBlt(down, 0, 0, n, n, big, 0, 0, 384, 384, RasterOp::Copy);
        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const bool inside = x < 384 && y < 384;
                ASSERT_EQ(up.pixel(x, y), inside ? src.pixel(x / zoom, y / zoom) : kUntouched)
                    << x << "," << y;
                if (x < n && y < n) {
                    ASSERT_EQ(down.pixel(x, y), big.pixel(x * zoom, y * zoom)) << x << "," << y;
                }
            }
    }
    // Not a whole factor: 5 source pixels onto 3 take pixels 0, 1 and 3.
    Plane row(3, 1);
    stretchBlt(row, 0, 0, 3, 1, toPlane({"abcde"}, letters()), 0, 0, 5, 1, RasterOp::Copy);
    EXPECT_EQ(fromPlane(row, letters()), text({"abd"}));
}

TEST(RasterTest, APlaneTransferredOntoItselfReadsTheOldPixels) {
    const struct {
        const char* name;
        int dx, dy, dw, dh, sx, sy, sw, sh;
        std::string expected;
    } cases[] = {
        {"flipped across", 0, 0, 5, 3, 4, 0, -5, 3, text({"edcba", "jihgf", "onmlk"})},
        {"flipped down", 0, 0, 5, 3, 0, 2, 5, -3, text({"klmno", "fghij", "abcde"})},
        {"left reflected into right", 3, 0, 2, 3, 1, 0, -2, 3, text({"abcba", "fghgf", "klmlk"})},
        {"top-left doubled", 0, 0, 4, 2, 0, 0, 2, 1, text({"aabbe", "aabbj", "klmno"})},
        {"shifted by one", 1, 1, 4, 2, 0, 0, 4, 2, text({"abcde", "fabcd", "kfghi"})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Plane plane = toPlane({"abcde", "fghij", "klmno"}, letters());
        stretchBlt(plane, c.dx, c.dy, c.dw, c.dh, plane, c.sx, c.sy, c.sw, c.sh, RasterOp::Copy);
        EXPECT_EQ(fromPlane(plane, letters()), c.expected);
    }
    Plane shifted = toPlane({"abcde", "fghij", "klmno"}, letters());
    bitBlt(shifted, 1, 1, 4, 2, shifted, 0, 0, RasterOp::Copy);
    EXPECT_EQ(fromPlane(shifted, letters()), text({"abcde", "fabcd", "kfghi"}));
}

TEST(RasterTest, NegativeExtentsMirrorAndZeroExtentsTransferNothing) {
    const Plane src = toPlane({"abc"}, letters());
    const struct {
        const char* name;
        int dx, dw, sx, sw;
        std::string expected;
    } cases[] = {
        {"negative destination", 2, -3, 0, 3, text({"cba..."})},
        {"negative source", 0, 3, 2, -3, text({"cba..."})},
        {"both negative: no mirror", 3, -3, 2, -3, text({".abc.."})},
        {"mirrored while doubling", 5, -6, 0, 3, text({"ccbbaa"})},
        {"partly off the left edge", 1, -3, 0, 3, text({"ba...."})},
        {"zero destination width", 0, 0, 0, 3, text({"......"})},
        {"zero source width", 0, 3, 0, 0, text({"......"})},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(t.name);
        Plane dst(6, 1, kUntouched);
        stretchBlt(dst, t.dx, 0, t.dw, 1, src, t.sx, 0, t.sw, 1, RasterOp::Copy);
        EXPECT_EQ(fromPlane(dst, letters()), t.expected);
    }
}

TEST(RasterTest, FillRectIsHalfOpenAndClippedAndOutsidePixelsAreIgnored) {
    Plane plane(3, 2, kUntouched);
    for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        EXPECT_EQ(plane.pixel(x, y), kInvalidColour);
        plane.setPixel(x, y, kBlack);
    }
    stretchBlt(plane, 0, 0, 3, 2, Plane(), 0, 0, 3, 2, RasterOp::Copy);
    fillRect(plane, 2, 1, 1, 0, kBlack); // inside out
    fillRect(plane, 1, 0, 1, 2, kBlack); // empty
    EXPECT_EQ(plane, Plane(3, 2, kUntouched));
    fillRect(plane, 1, -5, 2, 9, letters().at('a'));
    fillRect(plane, -4, 1, 1, 7, letters().at('b'));
    EXPECT_EQ(fromPlane(plane, letters()), text({".a.", "ba."}));
    plane.reset(-4, 2, kBlack);
    EXPECT_TRUE(plane.isEmpty());
}

} // namespace
