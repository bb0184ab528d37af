#include "tools/ToolsFixture.h"

namespace {

class FreehandToolsTest : public ToolsFixture {};

using T = DrawingTools;

TEST_F(FreehandToolsTest, OnlyPointsInsideTheGridPaintTheirCell) {
    // Size index, canvas point, the pixel painted (-1: none).
    const std::tuple<int, int, int, int, int> points[] = {
        {1, 0, 50, -1, -1},    {1, 384, 50, -1, -1}, {1, 50, 0, -1, -1},
        {1, 50, 384, -1, -1},  {1, -7, 50, -1, -1},  {1, 1, 1, 0, 0},
        {1, 383, 383, 31, 31}, {0, 95, 143, 3, 5},   {2, 31, 47, 3, 5}};
    for (const auto& [size, x, y, px, py] : points) {
        SCOPED_TRACE(testing::Message() << x << ", " << y << " at " << size);
        startWithSize(size);
        drag(1, {{x, y}});
        expectPicture(px < 0 ? "." : "k", std::max(px, 0), std::max(py, 0), 'T');
        EXPECT_TRUE(px < 0 || editor->doc().modified);
        expectViews();
    }
}

// Erase, and Pencil with "Transparent", write the transparent pair and make
// the cell look like one never painted; Erase whichever button.
TEST_F(FreehandToolsTest, ErasingRestoresTheEmptyCellLook) {
    for (int sizeIndex : {0, 2})
        for (const auto& [tool, button] : {std::pair{T::Erase, 1}, {T::Erase, 2}, {T::Pencil, 1}}) {
            SCOPED_TRACE(testing::Message()
                         << sizeIndex << " tool " << tool << " button " << button);
            startWithSize(sizeIndex);
            draw("", 'g');
            editor->colours().value = {kTransparentColour, static_cast<std::int32_t>(kBlue)};
            const auto colours = editor->colours().value;
            editor->tools().chooseTool(tool);
            click(button, 5, 6);
            expectPicture("T", 5, 6, 'g');
            expectViews();
            EXPECT_EQ(editor->colours().value, colours);
        }
}

} // namespace
