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
    paint(1, 0, kBlue, kWhite);
    recordPainting();
    const Plane canvas = editor->canvas().PicMain, image = doc().PicImage;
    for (EditAction item : {Cut, Copy, Delete}) // disabled items do nothing when called
        editor->editAction(item);
    EXPECT_EQ(clipboard.writes, 0);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(editor->canvas().PicMain, canvas);
    mark(0, 0, 24, 24); // icon pixels (0, 0) to (1, 1)
    EXPECT_EQ(enabling(), "++--+++");
    editor->editAction(Copy);
    EXPECT_EQ(enabling(), "+++++++");
    // Transparent pixels go to the clipboard white, an inverting one as white
    // XOR its colour; the selection stays and nothing is recorded.
    Plane copied(2, 2, kWhite);
    copied.setPixel(0, 0, kRed), copied.setPixel(1, 0, rgb(255, 255, 0));
    EXPECT_EQ(clipboard.picture, copied);
    EXPECT_EQ(clipboard.writes, 1);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(undoSize(), 2u);
    editor->editAction(Deselect);
    EXPECT_EQ(enabling(), "--++--+");
    editor->editAction(Paste);
    EXPECT_EQ(enabling(), "+++++++");
    editor->editAction(Delete);
    EXPECT_EQ(enabling(), "--++--+");
}

} // namespace
