#include "tools/ToolsFixture.h"

#include <vector>

namespace {

constexpr Colour kTeal = 0x808000;
using T = DrawingTools;
using UndoRedoTest = ToolsFixture;

// Every tool that changes the picture records exactly one state, at
// mouse-up; Sample and Select record nothing. Each tool draws in a colour of
// its own over the last, so every recorded state differs from the one before.
TEST_F(UndoRedoTest, EachToolRecordsOneStateThatUndoAndRedoStepThrough) {
    const auto state = [this] { return std::pair(doc().PicImage, doc().PicMask); };
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
}

// New clears both planes, the colours and the history, redo list and all.
TEST_F(UndoRedoTest, NewStartsEverySizeFullyTransparentWithAHistoryOfItsOwn) {
    const struct {
        int index, size, zoom, previewLeft, previewTop;
    } cases[] = {{2, 48, 8, 432, 14}, {0, 16, 24, 448, 30}, {1, 32, 12, 440, 22}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        editor->recordEdit();
        editor->undo(); // leaves a state to redo
        draw("", 'r');
        editor->doc().modified = true;
        dialogs.prompts.push_back(PromptAnswer::No); // drop the changes
        editor->colours().value = {0x123456, kTransparentColour};
        editor->newIcon(c.index);
        EXPECT_EQ(std::tuple(doc().size, doc().zoom, doc().maxIndex),
                  std::tuple(c.size, c.zoom, c.size - 1));
        EXPECT_EQ(editor->colours().value, (std::array<std::int32_t, 2>{kBlack, kWhite}));
        EXPECT_EQ(std::pair(editor->canvas().previewLeft, editor->canvas().previewTop),
                  std::pair(c.previewLeft, c.previewTop));
        EXPECT_EQ(std::tuple(doc().PicImage, doc().PicMask, doc().PicSelMask.height()),
                  std::tuple(Plane(c.size, c.size, kBlack), Plane(c.size, c.size, kWhite), c.size));
        EXPECT_EQ(IconDocument::indexForSize(c.size), c.index);
        EXPECT_EQ(std::pair(undoSize(), enabling({Redo})),
                  std::pair(std::size_t{1}, std::string("-")));
        EXPECT_FALSE(doc().modified);
        EXPECT_EQ(editor->windowTitle(), "Brevik - Untitled");
    }
    EXPECT_EQ(IconDocument::indexForSize(24), -1);
}

} // namespace
