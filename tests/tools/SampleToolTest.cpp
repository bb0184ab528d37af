#include "tools/ToolsFixture.h"

namespace {

class SampleToolTest : public ToolsFixture {};

using T = DrawingTools;

TEST_F(SampleToolTest, TakesThePixelColourOrTransparent) {
    const struct {
        const char* what;
        Colour colour, mask;
        std::int32_t expected;
    } cases[] = {
        {"transparent pair", kBlack, kWhite, kTransparentColour},
        {"inverting pixel", kRed, kWhite, static_cast<std::int32_t>(kRed)},
        {"opaque black", kBlack, kBlack, static_cast<std::int32_t>(kBlack)},
        {"opaque colour", kGreen, kBlack, static_cast<std::int32_t>(kGreen)},
    };
    for (int button : {1, 2}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << c.what << ", button " << button);
            startWithSize(1);
            setPixel(4, 9, c.colour, c.mask);
            editor->colours.value = {static_cast<std::int32_t>(kBlue),
                                     static_cast<std::int32_t>(kBlue)};
            editor->tools.chooseTool(T::Sample);
            click(button, 4, 9);
            EXPECT_EQ(editor->colours.value[button - 1], c.expected);
            EXPECT_EQ(editor->colours.value[2 - button], static_cast<std::int32_t>(kBlue));
            EXPECT_EQ(pixelAt(4, 9), std::make_pair(c.colour, c.mask));
        }
    }
}

TEST_F(SampleToolTest, FollowsTheDragAndIgnoresPointsOffThePicture) {
    setPixel(1, 1, kRed, kBlack);
    setPixel(2, 1, kGreen, kBlack);
    editor->tools.chooseTool(T::Sample);
    press(1, at(1), at(1));
    move(1, at(2), at(1));
    EXPECT_EQ(editor->colours.value[0], static_cast<std::int32_t>(kGreen));
    move(1, 384, at(1));
    move(1, -5, at(1));
    EXPECT_EQ(editor->colours.value[0], static_cast<std::int32_t>(kGreen));
    release(1, -5, at(1));
}

TEST_F(SampleToolTest, ReturnsToTheLastDrawingToolAtMouseUp) {
    const struct {
        const char* what;
        std::vector<int> chosen;
        int expected;
    } cases[] = {
        {"Line, Sample", {T::Line, T::Sample}, T::Line},
        {"Sample twice", {T::Ellipse, T::Sample, T::Sample}, T::Ellipse},
        {"Erase is never returned to", {T::Flood, T::Erase, T::Sample}, T::Flood},
        {"nor Select", {T::FilledRectangle, T::Select, T::Sample}, T::FilledRectangle},
        {"Pencil after New", {T::Sample}, T::Pencil},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        startWithSize(1);
        for (int tool : c.chosen)
            editor->tools.chooseTool(tool);
        click(1, 0, 0);
        EXPECT_EQ(editor->tools.currentTool, c.expected);
    }
}

TEST_F(SampleToolTest, LeavesTheHistoryAlone) {
    click(1, 3, 3);
    editor->editAction(0);
    ASSERT_TRUE(editor->editActionEnabled(1));
    editor->tools.chooseTool(T::Sample);
    click(1, 3, 3);
    EXPECT_TRUE(editor->editActionEnabled(1));
    EXPECT_EQ(editor->undoRedo.UndoStack.size(), 1u);
}

} // namespace
