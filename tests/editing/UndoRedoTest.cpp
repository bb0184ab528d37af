#include "support/EditorFixture.h"

#include <vector>

namespace {

constexpr Colour kOrange = 0x0080FF;
constexpr Colour kTeal = 0x808000;

class UndoRedoTest : public EditorFixture {
  protected:
    using T = DrawingTools;

    // One pencil click on icon pixel (x, y) in colour c.
    void stroke(int x, int y, Colour c) {
        editor->tools.chooseTool(T::Pencil);
        editor->colours.value[0] = static_cast<std::int32_t>(c);
        const int z = editor->doc.zoom;
        press(1, x * z + 2, y * z + 2);
        release(1, x * z + 2, y * z + 2);
    }

    // Both planes, to compare whole states.
    std::pair<Plane, Plane> state() const { return {editor->doc.PicImage, editor->doc.PicMask}; }

    bool undoEnabled() const { return editor->editActionEnabled(0); }
    bool redoEnabled() const { return editor->editActionEnabled(1); }
    std::size_t undoSize() const { return editor->undoRedo.UndoStack.size(); }
};

TEST_F(UndoRedoTest, AfterNewNothingCanBeUndoneOrRedone) {
    EXPECT_FALSE(undoEnabled());
    EXPECT_FALSE(redoEnabled());
    EXPECT_EQ(undoSize(), 1u);
}

TEST_F(UndoRedoTest, UndoOfOneStrokeRestoresTheBlankIconAndItsViews) {
    const auto blank = state();
    const Plane blankCanvas = editor->canvas.PicMain;
    const Plane blankPreview = editor->canvas.PicIcon;
    stroke(4, 6, kOrange);
    const auto painted = state();
    ASSERT_NE(painted, blank);
    EXPECT_TRUE(undoEnabled());
    EXPECT_FALSE(redoEnabled());

    editor->editAction(0);
    EXPECT_EQ(state(), blank);
    EXPECT_EQ(editor->canvas.PicMain, blankCanvas);
    EXPECT_EQ(editor->canvas.PicIcon, blankPreview);
    EXPECT_FALSE(undoEnabled());
    EXPECT_TRUE(redoEnabled());

    editor->editAction(1);
    EXPECT_EQ(state(), painted);
    EXPECT_EQ(editor->canvas.PicMain.pixel(4 * 12 + 6, 6 * 12 + 6), kOrange);
    EXPECT_EQ(editor->canvas.PicIcon.pixel(4, 6), kOrange);
    EXPECT_TRUE(undoEnabled());
    EXPECT_FALSE(redoEnabled());
}

// Every tool that changes the picture records exactly one state at mouse-up,
// and the state recorded is the picture after the change; Sample and Select
// record nothing.
TEST_F(UndoRedoTest, EachDrawingToolRecordsOneStateAtMouseUp) {
    const struct {
        int tool;
        bool records;
    } cases[] = {{T::Select, false},      {T::Pencil, true},          {T::Erase, true},
                 {T::Sample, false},      {T::Flood, true},           {T::Line, true},
                 {T::Rectangle, true},    {T::Ellipse, true},         {T::SolidRectangle, true},
                 {T::SolidEllipse, true}, {T::FilledRectangle, true}, {T::FilledEllipse, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.tool);
        startWithSize(1);
        editor->colours.value[0] = static_cast<std::int32_t>(kTeal);
        editor->tools.chooseTool(c.tool);
        press(1, 30, 30);
        move(1, 100, 80);
        EXPECT_EQ(undoSize(), 1u) << "nothing is recorded before mouse-up";
        release(1, 100, 80);
        editor->commitSelection();
        ASSERT_EQ(undoSize(), c.records ? 2u : 1u);
        // The top entry is the document as it stands: mask left, colour right.
        const Plane& top = editor->undoRedo.UndoStack.back().snapshot;
        ASSERT_EQ(top.width(), 64);
        ASSERT_EQ(top.height(), 32);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) {
                ASSERT_EQ(top.pixel(x, y), editor->doc.PicMask.pixel(x, y));
                ASSERT_EQ(top.pixel(32 + x, y), editor->doc.PicImage.pixel(x, y));
            }
    }
}

TEST_F(UndoRedoTest, StepsBackAndForthThroughASequenceOfEdits) {
    std::vector<std::pair<Plane, Plane>> states{state()};
    stroke(1, 1, kOrange);
    states.push_back(state());
    editor->tools.chooseTool(T::FilledRectangle);
    drag(2, {{20, 20}, {200, 120}});
    states.push_back(state());
    editor->tools.chooseTool(T::Flood);
    drag(1, {{300, 300}});
    states.push_back(state());
    editor->tools.chooseTool(T::Erase);
    drag(1, {{30, 30}, {60, 30}});
    states.push_back(state());
    for (std::size_t i = 1; i < states.size(); ++i)
        ASSERT_NE(states[i], states[i - 1]) << i;

    // Back to the first state, then forward again.
    for (std::size_t i = states.size() - 1; i-- > 0;) {
        editor->undo();
        EXPECT_EQ(state(), states[i]) << i;
    }
    EXPECT_FALSE(undoEnabled());
    for (std::size_t i = 1; i < states.size(); ++i) {
        editor->redo();
        EXPECT_EQ(state(), states[i]) << i;
    }
    EXPECT_FALSE(redoEnabled());
    EXPECT_EQ(undoSize(), states.size());
    // Entries pushed by edits carry the push count; moved ones carry none.
    EXPECT_EQ(editor->undoRedo.UndoStack[0].key, "1");
    EXPECT_EQ(editor->undoRedo.UndoCounter, 5);
}

TEST_F(UndoRedoTest, NewEditAfterUndoEmptiesRedoAlreadyAtMouseDown) {
    stroke(1, 1, kOrange);
    const auto first = state();
    stroke(2, 2, kTeal);
    editor->editAction(0);
    ASSERT_TRUE(redoEnabled());

    editor->colours.value[0] = static_cast<std::int32_t>(kTeal);
    press(1, 5 * 12 + 2, 5 * 12 + 2);
    EXPECT_FALSE(redoEnabled());
    release(1, 5 * 12 + 2, 5 * 12 + 2);
    EXPECT_EQ(undoSize(), 3u);
    EXPECT_EQ(pixelAt(2, 2), std::make_pair(kBlack, kWhite)) << "the undone stroke stays undone";

    editor->editAction(0);
    EXPECT_EQ(state(), first);
    editor->editAction(1);
    EXPECT_EQ(pixelAt(5, 5), std::make_pair(kTeal, kBlack));
    EXPECT_EQ(pixelAt(2, 2), std::make_pair(kBlack, kWhite));
}

TEST_F(UndoRedoTest, NewStartsAFreshHistoryAtTheNewSize) {
    stroke(1, 1, kOrange);
    stroke(2, 2, kOrange);
    editor->editAction(0);
    dialogs.prompts.push_back(PromptAnswer::No);
    editor->newIcon(0);
    EXPECT_EQ(undoSize(), 1u);
    EXPECT_EQ(editor->undoRedo.RedoStack.size(), 0u);
    EXPECT_EQ(editor->undoRedo.UndoCounter, 1);
    EXPECT_FALSE(undoEnabled());
    EXPECT_FALSE(redoEnabled());

    // The shortcut with nothing to undo leaves the 16 x 16 icon as it is.
    const auto blank = state();
    editor->undo();
    EXPECT_EQ(state(), blank);
    EXPECT_EQ(editor->doc.PicImage.width(), 16);
    stroke(3, 3, kTeal);
    EXPECT_EQ(pixelAt(3, 3), std::make_pair(kTeal, kBlack));
}

} // namespace
