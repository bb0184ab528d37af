#include "platform/Raster.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using AsciiArt::fromPlane;
using AsciiArt::text;
using AsciiArt::toPlane;

constexpr Colour kUntouched = 0x5A5A5A;

const AsciiArt::Palette kLetters = [] {
    AsciiArt::Palette p{{'.', kUntouched}};
    for (char c = 'a'; c <= 'o'; ++c)
        p[c] = static_cast<Colour>(0x100000 + c);
    return p;
}();

TEST(RasterTest, BlockCopyClipsAtEveryEdgeOfBothPlanes) {
    const Plane src = toPlane({"abc", "def", "ghi"}, kLetters);
    // What, destination, extent, source, the destination after.
    const std::tuple<const char*, int, int, int, int, int, int, std::string> cases[] = {
        {"inside", 1, 1, 2, 2, 0, 0, text({"....", ".ab.", ".de."})},
        {"off the left and top", -1, -1, 3, 3, 0, 0, text({"ef..", "hi..", "...."})},
        {"off the right and bottom", 2, 1, 3, 3, 0, 0, text({"....", "..ab", "..de"})},
        {"source partly past its plane", 0, 0, 3, 3, 1, 2, text({"hi..", "....", "...."})},
        {"destination far right", 9, 0, 3, 3, 0, 0, text({"....", "....", "...."})},
        {"source far outside", 0, 0, 3, 3, 7, 7, text({"....", "....", "...."})},
    };
    for (const auto& [what, dx, dy, w, h, sx, sy, expected] : cases) {
        Plane dst(4, 3, kUntouched);
        bitBlt(dst, dx, dy, w, h, src, sx, sy, RasterOp::Copy);
        EXPECT_EQ(fromPlane(dst, kLetters), expected) << what;
    }
}

TEST(RasterTest, StretchTakesTheFirstPixelOfEachBlockMirrorsAndReadsItsSourceFirst) {
    // What, the source row, destination and width, source and width, the row after.
    const std::tuple<const char*, const char*, int, int, int, int, std::string> cases[] = {
        {"doubled", "abc", 0, 6, 0, 3, text({"aabbcc"})},
        {"halved", "abcdef", 0, 3, 0, 6, text({"ace..."})},
        {"not a whole factor", "abcde", 0, 3, 0, 5, text({"abd..."})},
        {"negative destination", "abc", 2, -3, 0, 3, text({"cba..."})},
        {"negative source", "abc", 0, 3, 2, -3, text({"cba..."})},
        {"both negative: no mirror", "abc", 3, -3, 2, -3, text({".abc.."})},
        {"mirrored while doubling", "abc", 5, -6, 0, 3, text({"ccbbaa"})},
        {"partly off the left edge", "abc", 1, -3, 0, 3, text({"ba...."})},
        {"zero destination width", "abc", 0, 0, 0, 3, text({"......"})},
    };
    for (const auto& [what, src, dx, dw, sx, sw, expected] : cases) {
        Plane dst(6, 1, kUntouched);
        stretchBlt(dst, dx, 0, dw, 1, toPlane({src}, kLetters), sx, 0, sw, 1, RasterOp::Copy);
        EXPECT_EQ(fromPlane(dst, kLetters), expected) << what;
    }
    // A plane moved onto itself reads its pixels as they were before: the
    // flips and reflections rely on it with a mirrored source, and an
    // overlapping shift does too.
    Plane plane = toPlane({"abcde"}, kLetters);
    stretchBlt(plane, 1, 0, 4, 1, plane, 0, 0, 4, 1, RasterOp::Copy);
    EXPECT_EQ(fromPlane(plane, kLetters), text({"aabcd"}));
}

TEST(RasterTest, FillRectIsHalfOpenAndClippedAndOutsidePixelsAreIgnored) {
    Plane plane(3, 2, kUntouched);
    for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        EXPECT_EQ(plane.pixel(x, y), kInvalidColour);
        plane.setPixel(x, y, kBlack);
    }
    fillRect(plane, 2, 1, 1, 0, kBlack); // inside out
    fillRect(plane, 1, 0, 1, 2, kBlack); // empty
    EXPECT_EQ(plane, Plane(3, 2, kUntouched));
    fillRect(plane, 1, -5, 2, 9, kLetters.at('a'));
    fillRect(plane, -4, 1, 1, 7, kLetters.at('b'));
    EXPECT_EQ(fromPlane(plane, kLetters), text({".a.", "ba."}));
    plane.reset(-4, 2, kBlack);
    EXPECT_TRUE(plane.isEmpty());
}

} // namespace
