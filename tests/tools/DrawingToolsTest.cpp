#include "tools/ToolsFixture.h"

namespace {

class DrawingToolsTest : public ToolsFixture {};

using T = DrawingTools;

TEST_F(DrawingToolsTest, OtherMouseButtonsDoNothing) {
    for (int tool : {T::Pencil, T::Erase, T::Flood, T::Line, T::FilledEllipse, T::Sample}) {
        SCOPED_TRACE(tool);
        startWithSize(1);
        click(1, 2, 2);
        editor->editAction(Undo); // leaves something to redo
        draw("", 'g');
        const Plane canvas = editor->canvas().PicMain;
        const auto colours = editor->colours().value;
        editor->tools().chooseTool(tool);
        for (int button : {0, 3, 4, 8})
            drag(button, {{at(2), at(2)}, {at(6), at(6)}});
        expectPicture(".", 0, 0, 'g');
        EXPECT_EQ(editor->canvas().PicMain, canvas);
        EXPECT_EQ(editor->colours().value, colours);
        EXPECT_EQ(editor->tools().currentTool, tool);
        EXPECT_TRUE(editor->editActionEnabled(Redo)) << "redo history kept";
        EXPECT_EQ(undoSize(), 1u);
    }
}

// The gesture's own button draws until it is released, and only in the cells
// the mouse reports: nothing joins the points.
TEST_F(DrawingToolsTest, ASecondButtonIsIgnoredAndTheDragPaintsOnlyTheCellsReported) {
    setColours(kRed, kBlue);
    press(2, at(1), at(1));
    press(1, at(2), at(2));
    move(2, at(4), at(1));
    release(1, at(4), at(1));
    move(2, at(4), at(4)); // still drawing after the left button's release
    move(2, at(4, 5), at(4, 7));
    release(2, at(4, 5), at(4, 7));
    expectPicture("b..b/..../..../...b", 1, 1, 'T');
    EXPECT_EQ(undoSize(), 2u);
}

// Sample hands back to the last drawing tool at mouse-up; Erase and Select
// are never handed back to.
TEST_F(DrawingToolsTest, ToolChoiceKeepsThePreviousDrawingToolAndTheCursor) {
    const struct {
        int tool, previousAfter, cursor;
        bool clickAfter = false;
    } steps[] = {
        {T::Sample, T::Pencil, T::Sample, true}, {T::Line, T::Pencil, T::Select},
        {T::Flood, T::Line, T::Flood},           {T::Erase, T::Flood, T::Erase},
        {T::Select, T::Flood, T::Select},        {T::Sample, T::Flood, T::Sample},
        {T::Sample, T::Flood, T::Sample, true},  {T::Rectangle, T::Flood, T::Select},
        {T::Pencil, T::Rectangle, T::Pencil},
    };
    for (const auto& s : steps) {
        SCOPED_TRACE(s.tool);
        editor->tools().chooseTool(s.tool);
        EXPECT_EQ(editor->tools().currentTool, s.tool);
        EXPECT_EQ(editor->tools().previousTool, s.previousAfter);
        EXPECT_EQ(editor->tools().canvasCursorTool, s.cursor);
        if (s.clickAfter) {
            click(1, 0, 0);
            EXPECT_EQ(editor->tools().currentTool, s.previousAfter);
        }
    }
    editor->newIcon(0);
    EXPECT_EQ(editor->tools().currentTool, T::Pencil);
    EXPECT_EQ(editor->tools().previousTool, T::Pencil);
}

} // namespace
