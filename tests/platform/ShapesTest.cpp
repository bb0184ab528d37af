#include "platform/Shapes.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

using AsciiArt::fromPlane;
using AsciiArt::inkOnPaper;
using AsciiArt::text;

const Pen kInk{kBlack, 1, PenMode::Copy};
constexpr Colour kFill = 0x0000FF;

TEST(ShapesTest, LinesLeaveOutTheirLastPointAndTakeTheUpperOrLeftPixelOnATie) {
    const std::tuple<const char*, int, int, int, int, std::string> cases[] = {
        // clang-format off
        {"horizontal", 1, 1, 5, 1, text({".......", ".####..", ".......", ".......", "......."})},
        {"diagonal", 0, 0, 4, 4, text({"#......", ".#.....", "..#....", "...#...", "......."})},
        {"shallow", 0, 0, 6, 2, text({"##.....", "..###..", ".....#.", ".......", "......."})},
        {"shallow tie", 0, 0, 4, 1, text({"###....", "...#...", ".......", ".......", "......."})},
        {"tie backwards", 4, 1, 0, 0, text({".##....", "...##..", ".......", ".......", "......."})},
        {"rising tie", 0, 1, 4, 0, text({"..##...", "##.....", ".......", ".......", "......."})},
        {"steep tie", 1, 0, 3, 4, text({".#.....", ".#.....", "..#....", "..#....", "......."})},
        {"steep tie backwards", 3, 4, 1, 0, text({".......", ".#.....", "..#....", "..#....", "...#..."})},
        {"zero length", 3, 2, 3, 2, text({".......", ".......", ".......", ".......", "......."})},
        {"clipped", -2, 1, 9, 1, text({".......", "#######", ".......", ".......", "......."})},
        // clang-format on
    };
    for (const auto& [what, x1, y1, x2, y2, expected] : cases) {
        Plane plane(7, 5, kWhite);
        drawLine(plane, x1, y1, x2, y2, kInk);
        EXPECT_EQ(fromPlane(plane, inkOnPaper()), expected) << what;
    }
}

TEST(ShapesTest, BoxesIncludeBothCornersAndAWidePenGrowsToBothSides) {
    for (const auto& [x1, y1, x2, y2] :
         {std::tuple{1, 1, 5, 4}, {5, 4, 1, 1}, {5, 1, 1, 4}, {1, 4, 5, 1}}) {
        Plane thin(8, 6, kWhite), filled(8, 6, kWhite);
        drawBox(thin, x1, y1, x2, y2, kInk);
        fillBox(filled, x1, y1, x2, y2, kBlack);
        EXPECT_EQ(fromPlane(thin, inkOnPaper()),
                  text({"........", ".#####..", ".#...#..", ".#...#..", ".#####..", "........"}));
        EXPECT_EQ(fromPlane(filled, inkOnPaper()),
                  text({"........", ".#####..", ".#####..", ".#####..", ".#####..", "........"}));
    }
    Plane clipped(4, 3, kWhite);
    fillBox(clipped, 2, -5, 10, 1, kBlack);
    EXPECT_EQ(fromPlane(clipped, inkOnPaper()), text({"..##", "..##", "...."}));

    // Inverting, the same pixels flip once each: see the canvas's marquee.
    Plane wide(9, 7, kWhite);
    drawBox(wide, 1, 1, 7, 5, Pen{kBlack, 3, PenMode::Copy});
    EXPECT_EQ(fromPlane(wide, inkOnPaper()),
              text({"#########", "#########", "#########", "###...###", "#########", "#########",
                    "#########"}));
}

TEST(ShapesTest, EllipsesFillTheirBoxLessTheRightAndBottomEdges) {
    // '#' the outline, 'o' the fill; the box is [1, 1 + w) x [1, 1 + h), its
    // corners given backwards (the Ellipse tool gives them in order).
    const AsciiArt::Palette palette{{'#', kBlack}, {'o', kFill}, {'.', kWhite}};
    const std::tuple<int, int, std::string> cases[] = {
        {1, 1, text({"...", ".#.", "..."})},
        {2, 2, text({"....", ".##.", ".##.", "...."})},
        {3, 3, text({".....", "..#..", ".#o#.", "..#..", "....."})},
        {5, 3, text({".......", "..###..", ".#ooo#.", "..###..", "......."})},
        {0, 2, text({"..", "..", "..", ".."})},
        // clang-format off
        {6, 6, text({"........", "...##...", "..#oo#..", ".#oooo#.", ".#oooo#.", "..#oo#..",
                     "...##...", "........"})},
        // clang-format on
    };
    for (const auto& [w, h, expected] : cases) {
        SCOPED_TRACE(testing::Message() << w << " x " << h);
        Plane plane(w + 2, h + 2, kWhite);
        drawEllipse(plane, 1 + w, 1 + h, 1, 1, kInk, kFill);
        EXPECT_EQ(fromPlane(plane, palette), expected);
    }
}

} // namespace
