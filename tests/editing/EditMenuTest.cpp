#include "tools/ToolsFixture.h"

namespace {

class EditMenuTest : public ToolsFixture {};

TEST_F(EditMenuTest, ItemsFollowTheSelectionAndTheClipboard) {
    const auto enabling = [this] {
        std::string items;
        for (EditAction item : {Cut, Copy, Paste, PasteOpaque, Delete, Deselect, SelectAll})
            items += editor->editActionEnabled(item) ? '+' : '-';
        return items;
    };
    EXPECT_EQ(enabling(), "------+");
    paint(0, 0, kRed);
    recordPainting();
    const Plane canvas = editor->canvas().PicMain, image = doc().PicImage;
    for (EditAction item : {Cut, Copy, Delete}) // disabled items do nothing when called
        editor->editAction(item);
    EXPECT_EQ(clipboard.writes, 0);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(editor->canvas().PicMain, canvas);
    mark(0, 0, 24, 24);
    EXPECT_EQ(enabling(), "++--+++");
    editor->editAction(Copy);
    EXPECT_EQ(enabling(), "+++++++");
    editor->editAction(Deselect);
    EXPECT_EQ(enabling(), "--++--+");
    editor->editAction(Paste);
    EXPECT_EQ(enabling(), "+++++++");
    editor->editAction(Delete);
    EXPECT_EQ(enabling(), "--++--+");
}

} // namespace
