#include "tools/ToolsFixture.h"

namespace {

class SelectToolTest : public ToolsFixture {};

TEST_F(SelectToolTest, ARectangleWithoutAreaIsDiscarded) {
    const struct {
        const char* name;
        int x1, y1, x2, y2;
    } cases[] = {{"click", 30, 30, 30, 30},
                 {"within one cell", 25, 25, 34, 34},
                 {"no height", 30, 30, 80, 35},
                 {"no width", 30, 30, 35, 80}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        const Plane canvasBefore = editor->canvas().PicMain;
        mark(c.x1, c.y1, c.x2, c.y2);
        EXPECT_FALSE(sel().exists());
        EXPECT_FALSE(editor->tools().select.marking);
        EXPECT_EQ(std::pair(rect().Left, rect().Right), std::pair(-1, -1));
        EXPECT_EQ(editor->canvas().PicMain, canvasBefore);
        EXPECT_EQ(undoSize(), 1u);
    }
}

TEST_F(SelectToolTest, MarkingSnapsOrdersAndClampsTheCornersAndShowsOnlyTheLatestBox) {
    const struct {
        const char* name;
        int x1, y1, x2, y2;
        Selection::Rect rect;
        const char* size;
    } cases[] = {
        {"forwards", 25, 37, 61, 50, {24, 36, 60, 48}, "03 x 01"},
        {"backwards", 80, 80, 20, 30, {12, 24, 72, 72}, "05 x 04"},
        {"past the right and bottom", 300, 310, 500, 600, {300, 300, 384, 384}, "07 x 07"},
        {"past the left and top", 100, 100, -50, -7, {0, 0, 96, 96}, "08 x 08"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        editor->tools().chooseTool(DrawingTools::Select);
        press(1, c.x1, c.y1);
        move(1, 200, 150);
        move(1, c.x2, c.y2);
        EXPECT_TRUE(editor->tools().select.marking);
        EXPECT_EQ(editor->readoutToXY(), c.size);
        expectViews(false, true);
        release(1, c.x2, c.y2);
        EXPECT_EQ(editor->readoutToXY(), "");
        ASSERT_TRUE(sel().SelMarked);
        EXPECT_EQ(std::tuple(rect().Left, rect().Top, rect().Right, rect().Bottom),
                  std::tuple(c.rect.Left, c.rect.Top, c.rect.Right, c.rect.Bottom));
        EXPECT_EQ(doc().PicSelMask.width(), (c.rect.Right - c.rect.Left) / 12);
        EXPECT_EQ(doc().PicSelImage.height(), (c.rect.Bottom - c.rect.Top) / 12);
    }
}

TEST_F(SelectToolTest, MovingAMarkedSelectionLiftsItAndCommitsOnce) {
    paint(2, 2, kRed);
    paint(3, 3, kBlue);
    paint(6, 4, kGreen); // will lie under the moved selection's transparent corner
    recordPainting();
    const Plane image = doc().PicImage, mask = doc().PicMask;
    mark(24, 24, 48, 48); // icon pixels (2, 2) to (3, 3)

    press(1, 30, 30); // inside: the move starts and the source is cleared
    EXPECT_TRUE(sel().SelFloating);
    EXPECT_FALSE(sel().SelMarked);
    EXPECT_TRUE(doc().isTransparent(2, 2));
    move(1, -30, 90); // the pointer may take the selection off the canvas
    EXPECT_EQ(std::pair(rect().Left, rect().Right), std::pair(-24, 0));
    move(1, 90, 90); // cells (7, 7) to (8, 8)
    move(1, 66, 54); // back to cells (5, 4) to (6, 5)
    EXPECT_EQ(std::tuple(rect().Left, rect().Top, rect().Right, rect().Bottom),
              std::tuple(60, 48, 84, 72));
    // Shown at the new place with no trail; the document does not have it yet.
    expectViews(true, false);
    EXPECT_TRUE(doc().isTransparent(5, 4));

    release(1, 66, 54);
    EXPECT_TRUE(doc().modified);
    expectViews(true, true);
    EXPECT_EQ(undoSize(), 2u);

    editor->editAction(Deselect);
    EXPECT_EQ(undoSize(), 3u);
    expectPicture("rg/.b", 5, 4, 'T');
    editor->editAction(Undo);
    EXPECT_EQ(std::pair(doc().PicImage, doc().PicMask), std::pair(image, mask));
}

TEST_F(SelectToolTest, AFloatingSelectionMovesAgainWithoutClearingWhatLiesUnderIt) {
    paint(5, 5, kGreen);
    recordPainting();
    clipboard.picture = Plane(2, 2, kWhite);
    clipboard.picture.setPixel(0, 0, kRed);
    editor->editAction(Paste); // floating at (0, 0): red, then three transparent pixels
    // From cell (1, 1) to cell (5, 5): the selection covers (4, 4)-(5, 5); a
    // second drag on it, one cell up and left, leaves (5, 5) alone.
    mark(12, 12, 60, 60);
    EXPECT_EQ(rect().Left, 48);
    EXPECT_EQ(pixelAt(5, 5), std::make_pair(kGreen, kBlack));
    mark(50, 50, 40, 40);
    expectViews(true, true);
    editor->editAction(Deselect);
    expectPicture("r../.../..g", 3, 3, 'T');
    EXPECT_EQ(undoSize(), 3u);
}

TEST_F(SelectToolTest, TheRightButtonMarksAndMovesTooAndOthersDoNothing) {
    paint(2, 2, kRed);
    recordPainting();
    editor->tools().chooseTool(DrawingTools::Select);
    move(1, 100, 100); // no press: nothing happens
    release(1, 100, 100);
    drag(3, {{25, 25}, {61, 50}});
    EXPECT_FALSE(sel().exists());
    drag(2, {{25, 25}, {61, 50}});
    ASSERT_TRUE(sel().SelMarked);
    EXPECT_EQ(std::tuple(rect().Left, rect().Right, rect().Bottom), std::tuple(24, 60, 48));
    drag(2, {{30, 30}, {54, 42}}); // two cells right, one down
    EXPECT_TRUE(sel().SelFloating);
    EXPECT_EQ(std::tuple(rect().Left, rect().Top), std::tuple(48, 36));
    expectViews(true, true);
}

} // namespace
