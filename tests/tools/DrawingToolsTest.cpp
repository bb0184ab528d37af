#include "tools/ToolsFixture.h"

namespace {

class DrawingToolsTest : public ToolsFixture {};

using T = DrawingTools;

TEST_F(DrawingToolsTest, OtherMouseButtonsDoNothing) {
    for (int tool : {T::Pencil, T::Erase, T::Flood, T::Line, T::FilledEllipse, T::Sample}) {
        SCOPED_TRACE(tool);
        startWithSize(1);
        click(1, 2, 2);
        editor->editAction(0); // leaves something to redo
        fillOpaque(kGreen);
        const Plane image = editor->doc.PicImage, mask = editor->doc.PicMask;
        const Plane canvas = editor->canvas.PicMain;
        const auto colours = editor->colours.value;
        editor->tools.chooseTool(tool);
        for (int button : {0, 3, 4, 8}) {
            press(button, at(2), at(2));
            move(button, at(6), at(6));
            release(button, at(6), at(6));
        }
        EXPECT_EQ(editor->doc.PicImage, image);
        EXPECT_EQ(editor->doc.PicMask, mask);
        EXPECT_EQ(editor->canvas.PicMain, canvas);
        EXPECT_EQ(editor->colours.value, colours);
        EXPECT_EQ(editor->tools.currentTool, tool);
        EXPECT_TRUE(editor->editActionEnabled(1)) << "redo history kept";
        EXPECT_EQ(editor->undoRedo.UndoStack.size(), 1u);
    }
}

TEST_F(DrawingToolsTest, SecondButtonDuringAGestureIsIgnored) {
    editor->colours.value = {static_cast<std::int32_t>(kRed), static_cast<std::int32_t>(kBlue)};
    press(1, at(1), at(1));
    press(2, at(2), at(2));
    move(1, at(3), at(1));
    release(2, at(3), at(1));
    move(1, at(4), at(1));
    release(1, at(4), at(1));
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kRed, kBlack));
    EXPECT_EQ(pixelAt(2, 2), std::make_pair(kBlack, kWhite));
    EXPECT_EQ(pixelAt(4, 1), std::make_pair(kRed, kBlack)) << "still drawing after the right up";
    EXPECT_EQ(editor->undoRedo.UndoStack.size(), 2u);
}

TEST_F(DrawingToolsTest, ReadOutShowsPointerAndDragEnd) {
    move(0, 5 * 12 + 3, 11 * 12 + 11);
    EXPECT_EQ(editor->readoutXY, "05, 11");
    EXPECT_EQ(editor->readoutToXY, "");

    editor->tools.chooseTool(T::Line);
    press(1, at(1), at(2));
    EXPECT_EQ(editor->readoutXY, "01, 02");
    move(1, at(12), at(30));
    EXPECT_EQ(editor->readoutXY, "12, 30");
    EXPECT_EQ(editor->readoutToXY, "12, 30");
    release(1, at(12), at(30));
    EXPECT_EQ(editor->readoutToXY, "");

    startWithSize(2);
    move(0, 383, 0);
    EXPECT_EQ(editor->readoutXY, "47, 00");
}

TEST_F(DrawingToolsTest, ToolChoiceKeepsThePreviousDrawingToolAndTheCursor) {
    const struct {
        int tool;
        int previousAfter;
        int cursor;
    } steps[] = {
        {T::Line, T::Pencil, T::Select},      {T::Flood, T::Line, T::Flood},
        {T::Erase, T::Flood, T::Erase},       {T::Select, T::Flood, T::Select},
        {T::Sample, T::Flood, T::Sample},     {T::Rectangle, T::Flood, T::Select},
        {T::Pencil, T::Rectangle, T::Pencil},
    };
    for (const auto& s : steps) {
        SCOPED_TRACE(s.tool);
        editor->tools.chooseTool(s.tool);
        EXPECT_EQ(editor->tools.currentTool, s.tool);
        EXPECT_EQ(editor->tools.previousTool, s.previousAfter);
        EXPECT_EQ(editor->tools.canvasCursorTool, s.cursor);
    }
    editor->newIcon(0);
    EXPECT_EQ(editor->tools.currentTool, T::Pencil);
    EXPECT_EQ(editor->tools.previousTool, T::Pencil);
}

} // namespace
