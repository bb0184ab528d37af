#include "tools/ToolsFixture.h"

namespace {

class SampleToolTest : public ToolsFixture {};

using T = DrawingTools;

TEST_F(SampleToolTest, TakesThePixelColourOrTransparentAndLeavesTheHistoryAlone) {
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
    for (int button : {1, 2})
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << c.what << ", button " << button);
            startWithSize(1);
            click(1, 3, 3);
            editor->editAction(Undo); // leaves something to redo
            editor->doc().PicImage.setPixel(4, 9, c.colour);
            editor->doc().PicMask.setPixel(4, 9, c.mask);
            setColours(kBlue, kBlue);
            editor->tools().chooseTool(T::Sample);
            click(button, 4, 9);
            EXPECT_EQ(editor->colours().value[button - 1], c.expected);
            EXPECT_EQ(editor->colours().value[2 - button], static_cast<std::int32_t>(kBlue));
            EXPECT_EQ(pixelAt(4, 9), std::make_pair(c.colour, c.mask));
            EXPECT_TRUE(editor->editActionEnabled(Redo));
            EXPECT_EQ(editor->undoRedo().UndoStack.size(), 1u);
        }
}

TEST_F(SampleToolTest, FollowsTheDragAndIgnoresPointsOffThePicture) {
    draw("rg", 'T');
    editor->tools().chooseTool(T::Sample);
    press(1, at(0), at(0));
    move(1, at(1), at(0));
    EXPECT_EQ(editor->colours().value[0], static_cast<std::int32_t>(kGreen));
    move(1, 384, at(0));
    move(1, at(0), -13);
    EXPECT_EQ(editor->colours().value[0], static_cast<std::int32_t>(kGreen));
    move(1, -11, at(0)); // -11 div 12 truncates to the first pixel
    release(1, -11, at(0));
    EXPECT_EQ(editor->colours().value[0], static_cast<std::int32_t>(kRed));
}

} // namespace
