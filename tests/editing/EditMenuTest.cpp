#include "SelectionFixture.h"

namespace {

class EditMenuTest : public SelectionFixture {
  protected:
    // Cut, Copy, Paste, Paste Opaque, Delete, Deselect, Select All.
    std::vector<bool> enabling() const {
        std::vector<bool> items;
        for (int index : {3, 4, 5, 6, 7, 9, 10})
            items.push_back(editor->editActionEnabled(index));
        return items;
    }
};

TEST_F(EditMenuTest, ItemsFollowTheSelectionAndTheClipboard) {
    using V = std::vector<bool>;
    EXPECT_EQ(enabling(), (V{false, false, false, false, false, false, true}));

    mark(0, 0, 24, 24);
    EXPECT_EQ(enabling(), (V{true, true, false, false, true, true, true}));

    editor->editAction(4);
    EXPECT_EQ(enabling(), (V{true, true, true, true, true, true, true}));

    editor->editAction(9);
    EXPECT_EQ(enabling(), (V{false, false, true, true, false, false, true}));

    editor->editAction(5);
    EXPECT_EQ(enabling(), (V{true, true, true, true, true, true, true}));

    editor->editAction(7);
    EXPECT_EQ(enabling(), (V{false, false, true, true, false, false, true}));
}

TEST_F(EditMenuTest, CutCopyAndDeleteWithoutASelectionDoNothing) {
    paint(0, 0, kRed);
    recordPainting();
    const Plane canvas = editor->canvas.PicMain, image = doc().PicImage;
    for (int index : {3, 4, 7}) {
        SCOPED_TRACE(index);
        editor->editAction(index);
        EXPECT_EQ(clipboard.writes, 0);
        EXPECT_EQ(undoSize(), 2u);
        EXPECT_EQ(doc().PicImage, image);
        EXPECT_EQ(editor->canvas.PicMain, canvas);
    }
}

} // namespace
