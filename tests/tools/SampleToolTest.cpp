#include "tools/ToolsFixture.h"

namespace {

class SampleToolTest : public ToolsFixture {};

using T = DrawingTools;

// Only the transparent pair reads as "Transparent"; an inverting pixel gives
// its colour. Off the picture the last colour stays, but the division
// truncates, so a point up to a cell left of the canvas reads the first pixel.
TEST_F(SampleToolTest, FollowsThePointerOverThePictureAndLeavesPictureAndHistoryAlone) {
    // Row 9 from the left: transparent, inverting red, opaque black, opaque green.
    const std::int32_t taken[] = {kTransparentColour, kRed, kBlack, kGreen};
    for (int button : {1, 2}) {
        SCOPED_TRACE(button);
        startWithSize(1);
        click(1, 3, 3);
        editor->editAction(Undo); // leaves something to redo
        paint(1, 9, kRed, kWhite);
        paint(2, 9, kBlack);
        paint(3, 9, kGreen);
        const Plane image = doc().PicImage, mask = doc().PicMask;
        setColours(kBlue, kBlue);
        editor->tools().chooseTool(T::Sample);
        const std::int32_t& value = editor->colours().value[button - 1];
        press(button, at(0), at(9));
        EXPECT_EQ(value, taken[0]);
        for (int x = 1; x < 4; ++x) {
            move(button, at(x), at(9));
            EXPECT_EQ(value, taken[x]) << x;
        }
        move(button, 384, at(9));
        move(button, at(0), -13);
        EXPECT_EQ(value, taken[3]);
        move(button, -11, at(9));
        release(button, -11, at(9));
        EXPECT_EQ(value, taken[0]);
        // The other button's colour, the planes and the history stay.
        EXPECT_EQ(std::tuple(editor->colours().value[2 - button], doc().PicImage, doc().PicMask,
                             editor->editActionEnabled(Redo), undoSize()),
                  std::tuple(std::int32_t{kBlue}, image, mask, true, std::size_t{1}));
    }
}

} // namespace
