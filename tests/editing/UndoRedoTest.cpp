#include "tools/ToolsFixture.h"

#include <vector>

namespace {

constexpr Colour kTeal = 0x808000;
using T = DrawingTools;

class UndoRedoTest : public ToolsFixture {
  protected:
    std::pair<Plane, Plane> state() const {
        return {editor->doc().PicImage, editor->doc().PicMask};
    }
};

// Every tool that changes the picture records exactly one state, at
// mouse-up; Sample and Select record nothing. Each tool draws in a colour of
// its own over the last, so every recorded state differs from the one before.
TEST_F(UndoRedoTest, EachToolRecordsOneStateThatUndoAndRedoStepThrough) {
    std::vector<std::pair<Plane, Plane>> states{state()};
    for (const int tool :
         {T::Select, T::Pencil, T::Erase, T::Sample, T::Flood, T::Line, T::Rectangle, T::Ellipse,
          T::SolidRectangle, T::SolidEllipse, T::FilledRectangle, T::FilledEllipse}) {
        SCOPED_TRACE(tool);
        setColours(kTeal + tool, kWhite);
        editor->tools().chooseTool(tool);
        press(1, 30, 30);
        move(1, 100, 80);
        EXPECT_EQ(undoSize(), states.size()) << "nothing is recorded before mouse-up";
        release(1, 100, 80);
        editor->commitSelection();
        if (tool != T::Select && tool != T::Sample) {
            ASSERT_NE(state(), states.back());
            states.push_back(state());
        }
        ASSERT_EQ(undoSize(), states.size());
    }
    // Select All marks without recording: the first Undo drops the mark and
    // undoes the last tool's edit.
    editor->editAction(SelectAll);
    EXPECT_EQ(editor->tools().currentTool, T::Select);

    for (std::size_t i = states.size() - 1; i-- > 0;) {
        editor->undo();
        EXPECT_EQ(state(), states[i]) << i;
    }
    EXPECT_EQ(enabling({Undo, Redo}), "-+");
    // The shortcut with nothing to undo leaves the picture as it is but moves
    // the first entry to the redo list too, and Redo brings it back.
    editor->undo();
    EXPECT_EQ(state(), states[0]);
    EXPECT_EQ(undoSize(), 0u);
    for (std::size_t i = 0; i < states.size(); ++i) {
        editor->redo();
        EXPECT_EQ(state(), states[i]) << i;
    }
    EXPECT_EQ(enabling({Undo, Redo}), "+-");
    expectViews(false, false);

    // A new edit after Undo empties the redo list already at mouse-down, and
    // the undone edit stays undone.
    editor->undo();
    editor->tools().chooseTool(T::Pencil);
    press(1, at(31), at(31));
    EXPECT_EQ(enabling({Undo, Redo}), "+-");
    release(1, at(31), at(31));
    EXPECT_EQ(undoSize(), states.size());
    editor->undo();
    EXPECT_EQ(state(), states[states.size() - 2]);
    // New starts a history of its own, with nothing to undo or redo.
    dialogs.prompts.push_back(PromptAnswer::No);
    editor->newIcon(0);
    EXPECT_EQ(enabling({Undo, Redo}), "--");
}

} // namespace
