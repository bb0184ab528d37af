#include "tools/ToolsFixture.h"

#include "platform/Shapes.h"

namespace {

class ShapeToolsTest : public ToolsFixture {};

using T = DrawingTools;
constexpr std::int32_t kClear = kTransparentColour;

// On opaque green ('.'), left colour red, right blue unless "Transparent";
// the drag passes another cell and ends on the far edge of the last one.
TEST_F(ShapeToolsTest, EveryShapeWritesExactlyItsPixelsInBothPlanes) {
    const auto r = static_cast<std::int32_t>(kRed), b = static_cast<std::int32_t>(kBlue);
    // Size index, tool, button, colours, from and to, and the picture's corner.
    // clang-format off
    const std::tuple<int, int, int, std::int32_t, std::int32_t, int, int, int, int, int, int,
                     const char*> cases[] = {
        {1, T::Line, 1, r, b,           1, 1, 5, 1,      1, 1, "rrrrr"},  // end pixel included
        {0, T::Line, 2, r, b,           4, 4, 1, 1,      1, 1, "b.../.b../..b./...b"},
        {2, T::Line, 1, kClear, b,      0, 2, 0, 5,      0, 2, "T/T/T/T"},
        {1, T::Line, 1, r, b,           3, 3, 3, 3,      3, 3, "r"},
        {1, T::Rectangle, 1, r, b,      1, 1, 4, 3,      1, 1, "rrrr/r..r/rrrr"},
        {2, T::Rectangle, 1, r, b,      44, 44, 47, 47,  44, 44, "rrrr/r..r/r..r/rrrr"},
        {0, T::SolidRectangle, 1, r, b, 1, 1, 3, 2,      1, 1, "rrr/rrr"},
        {1, T::SolidRectangle, 2, r, kClear, 2, 2, 3, 4, 2, 2, "TT/TT/TT"},
        {1, T::FilledRectangle, 1, r, b, 0, 0, 3, 3,     0, 0, "rrrr/rbbr/rbbr/rrrr"},
        {2, T::FilledRectangle, 2, r, b, 3, 3, 0, 0,     0, 0, "bbbb/brrb/brrb/bbbb"},  // roles swap
        {0, T::FilledRectangle, 1, r, kClear, 1, 1, 4, 3, 1, 1, "rrrr/rTTr/rrrr"},
        {1, T::Ellipse, 1, r, b,        1, 1, 5, 3,      1, 1, ".rrr./r...r/.rrr."},
        {0, T::SolidEllipse, 2, r, b,   1, 1, 5, 3,      1, 1, ".bbb./bbbbb/.bbb."},
        {2, T::FilledEllipse, 1, r, b,  14, 14, 8, 8,    8, 8,
         "..rrr../.rbbbr./rbbbbbr/rbbbbbr/rbbbbbr/.rbbbr./..rrr.."},
        {1, T::FilledEllipse, 2, kClear, b, 1, 1, 5, 3,  1, 1, ".bbb./bTTTb/.bbb."},
    };
    // clang-format on
    for (const auto& [size, tool, button, left, right, x1, y1, x2, y2, ox, oy, picture] : cases) {
        SCOPED_TRACE(testing::Message() << "tool " << tool << " to " << x2 << ", " << y2);
        startWithSize(size);
        draw("", 'g');
        editor->colours().value = {left, right};
        editor->tools().chooseTool(tool);
        drag(button, {{at(x1), at(y1)},
                      {at((x1 + x2) / 2 + 1, 3), at(y1 + 1, 3)},
                      {at(x2, zoom() - 1), at(y2, zoom() - 1)}});
        expectPicture(picture, ox, oy, 'g');
        expectViews();
        EXPECT_TRUE(editor->doc().modified);
        EXPECT_EQ(editor->readoutToXY(), "");
    }
}

TEST_F(ShapeToolsTest, RubberBandIsInvertedOutlineThatErasesItself) {
    editor->tools().chooseTool(T::Rectangle);
    const Plane before = editor->canvas().PicMain;
    move(0, 5 * 12 + 3, 11 * 12 + 11);
    EXPECT_EQ(editor->readoutXY(), "05, 11");
    press(1, 13, 13);
    EXPECT_EQ(editor->readoutToXY(), "");
    EXPECT_EQ(editor->canvas().PicMain, before) << "nothing drawn at mouse-down";
    // Each point snaps to its cell's centre: 102 in cell 8, 66 in cell 5.
    for (const auto& [x, y, centre] : {std::tuple{100, 100, 102}, {60, 61, 66}}) {
        move(1, x, y);
        Plane band = before;
        drawBox(band, 13, 13, centre, centre, Pen{kBlack, 1, PenMode::Invert});
        EXPECT_EQ(editor->canvas().PicMain, band) << centre;
    }
    EXPECT_EQ(editor->readoutXY(), "05, 05");
    EXPECT_EQ(editor->readoutToXY(), "05, 05");
    EXPECT_FALSE(editor->doc().modified) << "the planes wait for mouse-up";
    release(1, 60, 61);
    expectPicture("kkkkk/k...k/k...k/k...k/kkkkk", 1, 1, 'T');
}

// Far past the canvas the figure keeps its shape and is clipped, cheaply.
TEST_F(ShapeToolsTest, DragFarOffTheCanvasIsClipped) {
    // A line towards icon pixel (300, 100) keeps its slope of one in three.
    editor->tools().chooseTool(T::Line);
    drag(1, {{at(0), at(0)}, {at(300), at(100)}});
    EXPECT_EQ(pixelAt(30, 10), std::make_pair(kBlack, kBlack));
    EXPECT_TRUE(editor->doc().isTransparent(10, 10));

    draw("", 'g');
    editor->tools().chooseTool(T::Rectangle);
    press(1, at(30), at(30));
    move(1, 1000000, -1000000);
    release(1, 1000000, -1000000);
    // Of the outline only the left and bottom sides lie on the icon.
    std::string outline;
    for (int y = 0; y < 30; ++y)
        outline += "k./";
    expectPicture((outline + "kk").c_str(), 30, 0, 'g');
}

} // namespace
