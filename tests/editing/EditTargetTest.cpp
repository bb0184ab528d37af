#include "tools/ToolsFixture.h"

#include "canvas/Canvas.h"
#include "editing/EditTarget.h"

namespace {

class EditTargetTest : public ToolsFixture {
  protected:
    // Paints the target's pixel (0, 0) blue, as an operation would, between
    // picking and finishing.
    EditTarget::Kind paintTarget(bool liftMarked) {
        const EditTarget target = targetFor(*editor, liftMarked);
        target.image.setPixel(0, 0, kBlue);
        target.mask.setPixel(0, 0, kBlack);
        finishEdit(*editor, target);
        return target.kind;
    }
};

TEST_F(EditTargetTest, TheSelectionIsRedrawnUnrecordedAndTheWholeIconRefreshedAndRecorded) {
    struct Case {
        const char* selection;
        bool liftMarked;
        EditTarget::Kind kind;
        // The document's pixels (1, 1) to (3, 1) after the edit, '.' for
        // transparent; the selection's pixel (0, 0) is icon pixel (1, 1).
        const char* icon;
        std::size_t undoEntries;
        bool floatingAfter;
    };
    const Case cases[] = {
        {"none", false, EditTarget::Whole, "rr.", 3, false},
        {"marked", false, EditTarget::Marked, "rr.", 2, false},
        {"marked, lifted", true, EditTarget::Floating, "...", 2, true},
        {"floating", false, EditTarget::Floating, "...", 2, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.selection);
        startWithSize(1);
        paint(1, 1, kRed);
        paint(2, 1, kRed);
        recordPainting();
        const Plane imageBefore = doc().PicImage, maskBefore = doc().PicMask;
        const std::string selection = c.selection;
        if (selection != "none")
            mark(at(1, 0), at(1, 0), at(3, 0), at(2, 0)); // icon pixels (1, 1) and (2, 1)
        if (selection == "floating")
            sel().BeginMove();
        editor->doc().modified = false;

        EXPECT_EQ(paintTarget(c.liftMarked), c.kind);
        EXPECT_EQ(picture(1, 1, 3, 1, 'T'), c.icon);
        EXPECT_EQ(undoSize(), c.undoEntries);
        EXPECT_EQ(sel().SelFloating, c.floatingAfter);
        if (c.kind == EditTarget::Whole) {
            EXPECT_EQ(doc().PicImage.pixel(0, 0), kBlue);
            expectViews();
        } else {
            EXPECT_EQ(doc().PicSelImage.pixel(0, 0), kBlue);
            expectRedrawnSelection();
            EXPECT_EQ(editor->canvas().PicMain.pixel(rect().Left + zoom(), rect().Top + 5), kRed)
                << "no grid line between the selection's cells";
        }
        EXPECT_TRUE(doc().modified) << "whatever the target, the picture changed";

        // Committed, the edit of a selection, marked ones included, is one
        // state in the history, and Undo takes it back.
        editor->editAction(Deselect);
        editor->editAction(Undo);
        EXPECT_EQ(doc().PicImage, imageBefore);
        EXPECT_EQ(doc().PicMask, maskBefore);
    }
}

} // namespace
