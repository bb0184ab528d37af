#include "tools/ToolsFixture.h"

namespace {

class ShapeToolsTest : public ToolsFixture {};

using T = DrawingTools;
constexpr std::int32_t kClear = kTransparentColour;

struct ShapeCase {
    const char* what;
    int sizeIndex;
    int tool;
    int button;
    std::int32_t leftColour, rightColour;
    int fromX, fromY, toX, toY; // icon pixels of the press and of the release
    int originX, originY;       // where the picture's top-left lies
    std::vector<std::string> picture;
};

// The document starts opaque green; after the drag both planes must match the
// picture exactly. The press is just inside its cell and the drag ends on the
// far edge of the last cell, passing a different cell first.
TEST_F(ShapeToolsTest, EveryShapeWritesExactlyItsPixelsInBothPlanes) {
    const Colour red = kRed, blue = kBlue;
    const auto L = static_cast<std::int32_t>(red), R = static_cast<std::int32_t>(blue);
    const std::vector<ShapeCase> cases = {
        {"line, end pixel included", 1, T::Line, 1, L, R, 1, 1, 5, 1, 0, 0, {"......", ".LLLLL"}},
        {"line backwards, right button",
         0,
         T::Line,
         2,
         L,
         R,
         4,
         4,
         1,
         1,
         1,
         1,
         {"R...", ".R..", "..R.", "...R"}},
        {"transparent line", 2, T::Line, 1, kClear, R, 0, 2, 0, 5, 0, 2, {"T", "T", "T", "T"}},
        {"one-pixel line", 1, T::Line, 1, L, R, 3, 3, 3, 3, 3, 3, {"L"}},
        {"rectangle", 1, T::Rectangle, 1, L, R, 1, 1, 4, 3, 1, 1, {"LLLL", "L..L", "LLLL"}},
        {"rectangle backwards, right button",
         2,
         T::Rectangle,
         2,
         L,
         R,
         6,
         5,
         2,
         2,
         2,
         2,
         {"RRRRR", "R...R", "R...R", "RRRRR"}},
        {"rectangle to the last pixel",
         2,
         T::Rectangle,
         1,
         L,
         R,
         44,
         44,
         47,
         47,
         44,
         44,
         {"LLLL", "L..L", "L..L", "LLLL"}},
        {"solid rectangle", 0, T::SolidRectangle, 1, L, R, 1, 1, 3, 2, 1, 1, {"LLL", "LLL"}},
        {"transparent solid rectangle",
         1,
         T::SolidRectangle,
         2,
         L,
         kClear,
         2,
         2,
         3,
         4,
         2,
         2,
         {"TT", "TT", "TT"}},
        {"filled rectangle, left button",
         1,
         T::FilledRectangle,
         1,
         L,
         R,
         0,
         0,
         3,
         3,
         0,
         0,
         {"LLLL", "LRRL", "LRRL", "LLLL"}},
        {"filled rectangle, right button swaps the roles",
         2,
         T::FilledRectangle,
         2,
         L,
         R,
         3,
         3,
         0,
         0,
         0,
         0,
         {"RRRR", "RLLR", "RLLR", "RRRR"}},
        {"filled rectangle, transparent inside",
         0,
         T::FilledRectangle,
         1,
         L,
         kClear,
         1,
         1,
         4,
         3,
         1,
         1,
         {"LLLL", "LTTL", "LLLL"}},
        {"filled rectangle, transparent outline",
         1,
         T::FilledRectangle,
         1,
         kClear,
         R,
         1,
         1,
         4,
         3,
         1,
         1,
         {"TTTT", "TRRT", "TTTT"}},
        {"ellipse", 1, T::Ellipse, 1, L, R, 1, 1, 5, 3, 1, 1, {".LLL.", "L...L", ".LLL."}},
        {"ellipse, 7 x 7",
         0,
         T::Ellipse,
         1,
         L,
         R,
         8,
         8,
         14,
         14,
         8,
         8,
         {"..LLL..", ".L...L.", "L.....L", "L.....L", "L.....L", ".L...L.", "..LLL.."}},
        {"solid ellipse, right button",
         0,
         T::SolidEllipse,
         2,
         L,
         R,
         1,
         1,
         5,
         3,
         1,
         1,
         {".RRR.", "RRRRR", ".RRR."}},
        {"filled ellipse backwards",
         2,
         T::FilledEllipse,
         1,
         L,
         R,
         14,
         14,
         8,
         8,
         8,
         8,
         {"..LLL..", ".LRRRL.", "LRRRRRL", "LRRRRRL", "LRRRRRL", ".LRRRL.", "..LLL.."}},
        {"filled ellipse, right button, transparent inside",
         1,
         T::FilledEllipse,
         2,
         kClear,
         R,
         1,
         1,
         5,
         3,
         1,
         1,
         {".RRR.", "RTTTR", ".RRR."}},
        {"transparent ellipse",
         2,
         T::Ellipse,
         1,
         kClear,
         R,
         1,
         1,
         5,
         3,
         1,
         1,
         {".TTT.", "T...T", ".TTT."}},
    };
    for (const ShapeCase& c : cases) {
        SCOPED_TRACE(c.what);
        startWithSize(c.sizeIndex);
        fillOpaque(kGreen);
        editor->colours.value = {c.leftColour, c.rightColour};
        editor->tools.chooseTool(c.tool);
        press(c.button, at(c.fromX), at(c.fromY));
        move(c.button, at((c.fromX + c.toX) / 2 + 1, 3), at(c.fromY + 1, 3));
        move(c.button, at(c.toX, zoom() - 1), at(c.toY, zoom() - 1));
        release(c.button, at(c.toX, zoom() - 1), at(c.toY, zoom() - 1));
        expectPicture(c.picture, c.originX, c.originY, kGreen, red, blue);
        EXPECT_TRUE(editor->doc.modified);
        EXPECT_EQ(editor->readoutToXY, "");
    }
}

// A press and release without a move draws the figure of the one pixel.
TEST_F(ShapeToolsTest, ClickDrawsTheOnePixelFigure) {
    for (int tool : {T::Line, T::Rectangle, T::SolidEllipse}) {
        SCOPED_TRACE(tool);
        startWithSize(1);
        fillOpaque(kGreen);
        editor->tools.chooseTool(tool);
        click(1, 6, 7);
        expectPicture({"L"}, 6, 7, kGreen, kBlack, kWhite);
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
