#include "platform/Shapes.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

namespace {

using AsciiArt::fromPlane;
using AsciiArt::inkOnPaper;
using AsciiArt::text;

const Pen kInk{kBlack, 1, PenMode::Copy};
const Pen kInvert{kBlack, 1, PenMode::Invert};

// Every pixel a different value, none white, so that inverting shows.
Plane numbered(int width, int height) {
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.setPixel(x, y, static_cast<Colour>(0x200000 + 0x100 * y + x));
    return plane;
}

std::set<std::pair<int, int>> pixelsOf(const Plane& plane, Colour colour) {
    std::set<std::pair<int, int>> found;
    for (int y = 0; y < plane.height(); ++y)
        for (int x = 0; x < plane.width(); ++x)
            if (plane.pixel(x, y) == colour)
                found.insert({x, y});
    return found;
}

// The nearest whole number to num / den (den > 0), halves going down.
int nearestTiesDown(int num, int den) {
    const int twice = 2 * num - den; // (num / den - 1/2) * 2 den
    const int q = twice / (2 * den), r = twice % (2 * den);
    return r > 0 ? q + 1 : q; // ceiling
}

TEST(ShapesTest, LinesLeaveOutTheirLastPoint) {
    const struct {
        const char* name;
        int x1, y1, x2, y2;
        std::string expected;
    } cases[] = {
        {"horizontal", 1, 1, 5, 1, text({".......", ".####..", ".......", "......."})},
        {"horizontal backwards", 5, 1, 1, 1, text({".......", "..####.", ".......", "......."})},
        {"vertical", 2, 0, 2, 3, text({"..#....", "..#....", "..#....", "......."})},
        {"diagonal", 0, 0, 4, 4, text({"#......", ".#.....", "..#....", "...#..."})},
        {"shallow", 0, 0, 6, 2, text({"##.....", "..###..", ".....#.", "......."})},
        {"steep", 1, 0, 3, 4, text({".#.....", ".#.....", "..#....", "..#...."})},
        {"zero length", 3, 2, 3, 2, text({".......", ".......", ".......", "......."})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Plane plane(7, 4, kWhite);
        drawLine(plane, c.x1, c.y1, c.x2, c.y2, kInk);
        EXPECT_EQ(fromPlane(plane, inkOnPaper()), c.expected);
    }
}

TEST(ShapesTest, LinesInEveryOctantTakeTheNearestPixelAndTheUpperOneOnATie) {
    // From the centre to every point of a 15 x 15 square: the line visits one
    // pixel per step along its longer axis, rounding the other coordinate to
    // the nearest pixel, half-way cases to the smaller coordinate.
    const int cx = 8, cy = 8;
    for (int ey = 1; ey <= 15; ++ey)
        for (int ex = 1; ex <= 15; ++ex) {
            SCOPED_TRACE(testing::Message() << "to " << ex << "," << ey);
            const int dx = ex - cx, dy = ey - cy;
            const int steps = std::max(std::abs(dx), std::abs(dy));
            std::set<std::pair<int, int>> expected;
            for (int i = 0; i < steps; ++i) {
                if (std::abs(dx) >= std::abs(dy))
                    expected.insert(
                        {cx + (dx > 0 ? i : -i), cy + nearestTiesDown(dy * i, std::abs(dx))});
                else
                    expected.insert(
                        {cx + nearestTiesDown(dx * i, std::abs(dy)), cy + (dy > 0 ? i : -i)});
            }
            Plane plane(17, 17, kWhite);
            drawLine(plane, cx, cy, ex, ey, kInk);
            ASSERT_EQ(pixelsOf(plane, kBlack), expected);

            // Drawn the other way it covers the same pixels but for the ends.
            Plane back(17, 17, kWhite);
            drawLine(back, ex, ey, cx, cy, kInk);
            back.setPixel(cx, cy, kBlack);
            plane.setPixel(ex, ey, kBlack);
            ASSERT_EQ(back, plane);
        }
}

TEST(ShapesTest, LinesAreClippedToThePlane) {
    Plane plane(4, 3, kWhite);
    drawLine(plane, -2, 1, 9, 1, kInk);
    EXPECT_EQ(fromPlane(plane, inkOnPaper()), text({"....", "####", "...."}));
}

TEST(ShapesTest, BoxOutlinesIncludeBothCorners) {
    const std::string thin = text({
        "........",
        ".#####..",
        ".#...#..",
        ".#...#..",
        ".#####..",
        "........",
    });
    for (const auto& [x1, y1, x2, y2] :
         {std::tuple{1, 1, 5, 4}, {5, 4, 1, 1}, {5, 1, 1, 4}, {1, 4, 5, 1}}) {
        Plane plane(8, 6, kWhite);
        drawBox(plane, x1, y1, x2, y2, kInk);
        EXPECT_EQ(fromPlane(plane, inkOnPaper()), thin) << x1 << "," << y1;
    }

    Plane wide(11, 9, kWhite);
    drawBox(wide, 2, 2, 8, 6, Pen{kBlack, 3, PenMode::Copy});
    EXPECT_EQ(fromPlane(wide, inkOnPaper()), text({
                                                 "...........",
                                                 ".#########.",
                                                 ".#########.",
                                                 ".#########.",
                                                 ".###...###.",
                                                 ".#########.",
                                                 ".#########.",
                                                 ".#########.",
                                                 "...........",
                                             }));
}

TEST(ShapesTest, FilledBoxesIncludeBothCornersAndAreClipped) {
    Plane plane(6, 5, kWhite);
    fillBox(plane, 4, 3, 1, 1, kBlack);
    EXPECT_EQ(fromPlane(plane, inkOnPaper()), text({
                                                  "......",
                                                  ".####.",
                                                  ".####.",
                                                  ".####.",
                                                  "......",
                                              }));
    Plane clipped(4, 3, kWhite);
    fillBox(clipped, 2, -5, 10, 1, kBlack);
    EXPECT_EQ(fromPlane(clipped, inkOnPaper()), text({"..##", "..##", "...."}));
}

TEST(ShapesTest, EllipsesFillTheirBoxLessTheRightAndBottomEdges) {
    // '#' the outline, 'o' the fill; the box is [1, 1 + w) x [1, 1 + h).
    const AsciiArt::Palette palette{{'#', kBlack}, {'o', 0x0000FF}, {'.', kWhite}};
    const struct {
        int w, h;
        std::string expected;
    } cases[] = {
        {1, 1, text({"...", ".#.", "..."})},
        {2, 2, text({"....", ".##.", ".##.", "...."})},
        {3, 3, text({".....", "..#..", ".#o#.", "..#..", "....."})},
        {5, 3, text({".......", "..###..", ".#ooo#.", "..###..", "......."})},
        {8, 2, text({"..........", ".########.", ".########.", ".........."})},
        {3, 7,
         text({".....", "..#..", ".#o#.", ".#o#.", ".#o#.", ".#o#.", ".#o#.", "..#..", "....."})},
        {8, 8,
         text({
             "..........",
             "...####...",
             "..#oooo#..",
             ".#oooooo#.",
             ".#oooooo#.",
             ".#oooooo#.",
             ".#oooooo#.",
             "..#oooo#..",
             "...####...",
             "..........",
         })},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.w << " x " << c.h);
        Plane plane(c.w + 2, c.h + 2, kWhite);
        drawEllipse(plane, 1, 1, 1 + c.w, 1 + c.h, kInk, 0x0000FF);
        EXPECT_EQ(fromPlane(plane, palette), c.expected);

        // Corners given the other way round make the same ellipse; without a
        // fill the inside keeps what was there.
        Plane swapped(c.w + 2, c.h + 2, kWhite);
        drawEllipse(swapped, 1 + c.w, 1 + c.h, 1, 1, kInk, 0x0000FF);
        EXPECT_EQ(swapped, plane);
        Plane hollow(c.w + 2, c.h + 2, kWhite);
        drawEllipse(hollow, 1, 1, 1 + c.w, 1 + c.h, kInk);
        EXPECT_EQ(pixelsOf(hollow, kBlack), pixelsOf(plane, kBlack));
        EXPECT_TRUE(pixelsOf(hollow, 0x0000FF).empty());
    }
}

TEST(ShapesTest, EveryEllipseTouchesItsBoxIsSymmetricAndHasNoGaps) {
    for (int h = 1; h <= 24; ++h)
        for (int w = 1; w <= 24; ++w) {
            SCOPED_TRACE(testing::Message() << w << " x " << h);
            Plane plane(w + 2, h + 2, kWhite);
            drawEllipse(plane, 1, 1, 1 + w, 1 + h, kInk, 0x0000FF);
            const auto outline = pixelsOf(plane, kBlack), inside = pixelsOf(plane, 0x0000FF);
            ASSERT_EQ(outline.size() + inside.size() + pixelsOf(plane, kWhite).size(),
                      static_cast<std::size_t>((w + 2) * (h + 2)));
            int minX = 1000, maxX = -1, minY = 1000, maxY = -1;
            for (const auto& [x, y] : outline) {
                minX = std::min(minX, x), maxX = std::max(maxX, x);
                minY = std::min(minY, y), maxY = std::max(maxY, y);
                // Mirror images across both axes of the box.
                ASSERT_TRUE(outline.count({w + 1 - x, y})) << x << "," << y;
                ASSERT_TRUE(outline.count({x, h + 1 - y})) << x << "," << y;
            }
            // The curve has no gaps: it is all one piece, pixels touching at
            // sides or corners.
            std::set<std::pair<int, int>> reached{*outline.begin()};
            std::vector<std::pair<int, int>> todo{*outline.begin()};
            while (!todo.empty()) {
                const auto [x, y] = todo.back();
                todo.pop_back();
                for (int j = -1; j <= 1; ++j)
                    for (int i = -1; i <= 1; ++i)
                        if (outline.count({x + i, y + j}) && reached.insert({x + i, y + j}).second)
                            todo.push_back({x + i, y + j});
            }
            ASSERT_EQ(reached, outline);
            if (w >= 3 && h >= 3) {
                ASSERT_FALSE(inside.empty());
            }
            ASSERT_EQ(std::tuple(minX, maxX, minY, maxY), std::tuple(1, w, 1, h));
            // Every row of the shape is one unbroken run, outline at its ends.
            for (int y = 1; y <= h; ++y) {
                int first = -1, last = -1;
                for (int x = 1; x <= w; ++x)
                    if (plane.pixel(x, y) != kWhite) {
                        first = first < 0 ? x : first;
                        last = x;
                    }
                ASSERT_GE(first, 1) << "row " << y;
                for (int x = first; x <= last; ++x)
                    ASSERT_NE(plane.pixel(x, y), kWhite) << x << "," << y;
                ASSERT_EQ(plane.pixel(first, y), kBlack);
                ASSERT_EQ(plane.pixel(last, y), kBlack);
            }
        }
}

TEST(ShapesTest, EmptyEllipseBoxesDrawNothing) {
    Plane plane(5, 5, kWhite);
    drawEllipse(plane, 1, 1, 1, 4, kInk, kBlack);
    drawEllipse(plane, 1, 2, 4, 2, kInk, kBlack);
    EXPECT_EQ(plane, Plane(5, 5, kWhite));
}

TEST(ShapesTest, InvertingFiguresDrawnTwiceLeaveThePlaneAsItWas) {
    const Plane original = numbered(20, 16);
    const Pen wideInvert{kBlack, 3, PenMode::Invert};
    const struct {
        const char* name;
        void (*draw)(Plane&, const Pen&);
    } figures[] = {
        {"line", [](Plane& p, const Pen& pen) { drawLine(p, 2, 3, 17, 11, pen); }},
        {"box", [](Plane& p, const Pen& pen) { drawBox(p, 1, 1, 18, 14, pen); }},
        {"ellipse", [](Plane& p, const Pen& pen) { drawEllipse(p, 0, 0, 20, 16, pen); }},
        {"degenerate box", [](Plane& p, const Pen& pen) { drawBox(p, 4, 4, 4, 9, pen); }},
    };
    for (const auto& figure : figures)
        for (const Pen& pen : {kInvert, wideInvert}) {
            SCOPED_TRACE(testing::Message() << figure.name << " width " << pen.width);
            Plane plane = original;
            figure.draw(plane, pen);
            EXPECT_NE(plane, original);
            // Each changed pixel is the inverse of what was there.
            for (int y = 0; y < 16; ++y)
                for (int x = 0; x < 20; ++x)
                    if (plane.pixel(x, y) != original.pixel(x, y)) {
                        ASSERT_EQ(plane.pixel(x, y), original.pixel(x, y) ^ kWhite);
                    }
            figure.draw(plane, pen);
            EXPECT_EQ(plane, original);
        }
}

TEST(ShapesTest, AWideInvertingBoxInvertsItsOverlappingCornersOnce) {
    const Plane original = numbered(9, 8);
    Plane plane = original;
    drawBox(plane, 1, 1, 7, 5, Pen{kBlack, 3, PenMode::Invert});
    // '#' inverted once, '.' untouched; anything else (twice-inverted corners
    // are untouched, so they would show as '.') fails below.
    std::string shown;
    for (int y = 0; y < 8; ++y) {
        shown += '\n';
        for (int x = 0; x < 9; ++x) {
            const Colour now = plane.pixel(x, y), was = original.pixel(x, y);
            shown += now == was ? '.' : (now == (was ^ kWhite) ? '#' : '?');
        }
    }
    EXPECT_EQ(shown, text({
                         "#########",
                         "#########",
                         "#########",
                         "###...###",
                         "#########",
                         "#########",
                         "#########",
                         ".........",
                     }));
}

} // namespace
