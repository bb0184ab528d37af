#include "tools/ToolsFixture.h"

namespace {

class ShapeToolsTest : public ToolsFixture {};

using T = DrawingTools;
constexpr std::int32_t kClear = kTransparentColour;

// One gesture: press on icon pixel (x1, y1), release on (x2, y2); the picture
// ('/' between rows) lies with its top-left at (ox, oy).
struct ShapeCase {
    int sizeIndex, tool, button;
    std::int32_t left, right;
    int x1, y1, x2, y2, ox, oy;
    const char* picture;
};

// The document starts opaque green; after the drag both planes must match the
// picture exactly. The press is just inside its cell and the drag ends on the
// far edge of the last cell, passing a different cell first. 'L' and 'R' are
// the left (red) and right (blue) colours, 'T' the transparent pair.
TEST_F(ShapeToolsTest, EveryShapeWritesExactlyItsPixelsInBothPlanes) {
    const auto L = static_cast<std::int32_t>(kRed), R = static_cast<std::int32_t>(kBlue);
    // clang-format off
    const ShapeCase cases[] = {
        {1, T::Line, 1, L, R,           1, 1, 5, 1,      1, 1, "LLLLL"},  // end pixel included
        {0, T::Line, 2, L, R,           4, 4, 1, 1,      1, 1, "R.../.R../..R./...R"},
        {2, T::Line, 1, kClear, R,      0, 2, 0, 5,      0, 2, "T/T/T/T"},
        {1, T::Line, 1, L, R,           3, 3, 3, 3,      3, 3, "L"},
        {1, T::Rectangle, 1, L, R,      1, 1, 4, 3,      1, 1, "LLLL/L..L/LLLL"},
        {2, T::Rectangle, 2, L, R,      6, 5, 2, 2,      2, 2, "RRRRR/R...R/R...R/RRRRR"},
        {2, T::Rectangle, 1, L, R,      44, 44, 47, 47,  44, 44, "LLLL/L..L/L..L/LLLL"},
        {0, T::SolidRectangle, 1, L, R, 1, 1, 3, 2,      1, 1, "LLL/LLL"},
        {1, T::SolidRectangle, 2, L, kClear, 2, 2, 3, 4, 2, 2, "TT/TT/TT"},
        {1, T::FilledRectangle, 1, L, R, 0, 0, 3, 3,     0, 0, "LLLL/LRRL/LRRL/LLLL"},
        {2, T::FilledRectangle, 2, L, R, 3, 3, 0, 0,     0, 0, "RRRR/RLLR/RLLR/RRRR"},  // roles swap
        {0, T::FilledRectangle, 1, L, kClear, 1, 1, 4, 3, 1, 1, "LLLL/LTTL/LLLL"},
        {1, T::FilledRectangle, 1, kClear, R, 1, 1, 4, 3, 1, 1, "TTTT/TRRT/TTTT"},
        {1, T::Ellipse, 1, L, R,        1, 1, 5, 3,      1, 1, ".LLL./L...L/.LLL."},
        {0, T::Ellipse, 1, L, R,        8, 8, 14, 14,    8, 8,
         "..LLL../.L...L./L.....L/L.....L/L.....L/.L...L./..LLL.."},
        {0, T::SolidEllipse, 2, L, R,   1, 1, 5, 3,      1, 1, ".RRR./RRRRR/.RRR."},
        {2, T::FilledEllipse, 1, L, R,  14, 14, 8, 8,    8, 8,
         "..LLL../.LRRRL./LRRRRRL/LRRRRRL/LRRRRRL/.LRRRL./..LLL.."},
        {1, T::FilledEllipse, 2, kClear, R, 1, 1, 5, 3,  1, 1, ".RRR./RTTTR/.RRR."},
        {2, T::Ellipse, 1, kClear, R,   1, 1, 5, 3,      1, 1, ".TTT./T...T/.TTT."},
    };
    // clang-format on
    for (const ShapeCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "tool " << c.tool << " to " << c.x2 << ", " << c.y2
                                        << " at size index " << c.sizeIndex);
        startWithSize(c.sizeIndex);
        fillOpaque(kGreen);
        editor->colours.value = {c.left, c.right};
        editor->tools.chooseTool(c.tool);
        press(c.button, at(c.x1), at(c.y1));
        move(c.button, at((c.x1 + c.x2) / 2 + 1, 3), at(c.y1 + 1, 3));
        move(c.button, at(c.x2, zoom() - 1), at(c.y2, zoom() - 1));
        release(c.button, at(c.x2, zoom() - 1), at(c.y2, zoom() - 1));
        expectPicture(c.picture, c.ox, c.oy, kGreen, kRed, kBlue);
        EXPECT_TRUE(editor->doc.modified);
        EXPECT_EQ(editor->readoutToXY, "");
    }
}

// While dragging, only an inverted outline lies on the canvas; each move
// removes the previous one; mouse-up leaves the canvas as the planes say.
TEST_F(ShapeToolsTest, RubberBandIsInvertedOutlineThatErasesItself) {
    editor->tools.chooseTool(T::Rectangle);
    const Plane before = editor->canvas.PicMain;
    press(1, 13, 13);
    EXPECT_EQ(editor->canvas.PicMain, before) << "nothing drawn at mouse-down";

    move(1, 100, 100); // snaps to the centre of cell 8: 102
    EXPECT_EQ(editor->canvas.PicMain.pixel(102, 50), before.pixel(102, 50) ^ kWhite);
    EXPECT_EQ(editor->canvas.PicMain.pixel(13, 102), before.pixel(13, 102) ^ kWhite);

    move(1, 60, 61); // cell 5: 66
    const Plane& main = editor->canvas.PicMain;
    EXPECT_EQ(main.pixel(102, 50), before.pixel(102, 50)) << "old band erased";
    int changed = 0;
    for (int y = 0; y < main.height(); ++y) {
        for (int x = 0; x < main.width(); ++x) {
            if (main.pixel(x, y) == before.pixel(x, y))
                continue;
            ++changed;
            const bool onBand = ((x == 13 || x == 66) && y >= 13 && y <= 66) ||
                                ((y == 13 || y == 66) && x >= 13 && x <= 66);
            EXPECT_TRUE(onBand) << x << ", " << y;
            EXPECT_EQ(main.pixel(x, y), before.pixel(x, y) ^ kWhite);
        }
    }
    EXPECT_EQ(changed, 4 * 53);
    EXPECT_EQ(editor->readoutToXY, "05, 05");
    EXPECT_FALSE(editor->doc.modified) << "the planes wait for mouse-up";

    release(1, 60, 61);
    // The outline lands in cells 1..5; a cell of it is black on the canvas,
    // a cell inside shows the transparent hatch as before.
    EXPECT_EQ(main.pixel(5 * 12 + 6, 3 * 12 + 6), kBlack);
    EXPECT_EQ(main.pixel(2 * 12 + 6, 2 * 12 + 6), before.pixel(2 * 12 + 6, 2 * 12 + 6));
    EXPECT_EQ(main.pixel(102, 50), before.pixel(102, 50));
    EXPECT_EQ(editor->canvas.PicIcon.pixel(5, 3), kBlack);
}

// Far past the canvas the figure is clipped to the icon, and stays cheap.
TEST_F(ShapeToolsTest, DragFarOffTheCanvasIsClipped) {
    fillOpaque(kGreen);
    editor->tools.chooseTool(T::Rectangle);
    press(1, at(30), at(30));
    move(1, 1000000, -1000000);
    release(1, 1000000, -1000000);
    // The outline's left side runs down column 30 from the top edge.
    for (int y = 0; y <= 30; ++y)
        EXPECT_EQ(pixelAt(30, y).first, kBlack) << y;
    EXPECT_EQ(pixelAt(31, 30).first, kBlack);
    EXPECT_EQ(pixelAt(31, 29).first, kGreen);
}

} // namespace
