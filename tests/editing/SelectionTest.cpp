#include "SelectionFixture.h"

namespace {

class SelectionTest : public SelectionFixture {};

TEST_F(SelectionTest, UndoAfterSelectAllUndoesExactlyOneEdit) {
    paint(1, 1, kRed);
    recordPainting();
    paint(2, 2, kGreen);
    recordPainting();
    ASSERT_EQ(undoSize(), 3u);

    editor->editAction(10);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(editor->tools.currentTool, DrawingTools::Select);
    EXPECT_EQ(sel().SelRect.Right, 384);
    EXPECT_EQ(doc().PicSelImage.width(), 32);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
    EXPECT_EQ(undoSize(), 3u);

    editor->editAction(0);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(editor->undoRedo.RedoStack.size(), 1u);
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kRed, kBlack));
    EXPECT_TRUE(doc().isTransparent(2, 2));
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));
}

TEST_F(SelectionTest, CommitOfAnUnmovedMarkedSelectionRecordsNothing) {
    paint(3, 3, kRed);
    paintInverting(4, 3, kBlue);
    paintInverting(3, 5, kGreen); // outside the selection: left alone
    recordPainting();
    editor->doc.modified = false;
    const std::size_t before = undoSize();

    mark(36, 36, 72, 48); // icon pixels (3, 3) to (5, 3)
    ASSERT_TRUE(sel().SelMarked);
    editor->editAction(9);

    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(sel().SelRect.Left, -1);
    EXPECT_EQ(sel().SelRect.Bottom, -1);
    EXPECT_EQ(undoSize(), before);
    EXPECT_FALSE(doc().modified);
    EXPECT_EQ(pixelAt(3, 3), std::make_pair(kRed, kBlack));
    // The stamp of a copy of itself turns an inverting pixel's colour black.
    EXPECT_EQ(pixelAt(4, 3), std::make_pair(kBlack, kWhite));
    EXPECT_TRUE(doc().isTransparent(5, 3));
    EXPECT_EQ(pixelAt(3, 5), std::make_pair(kGreen, kWhite));
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));
    EXPECT_EQ(editor->canvas.PicIcon, expectedPreview(false));
}

TEST_F(SelectionTest, DeleteOfAMarkedThreeByThreeAreaClearsExactlyThatArea) {
    for (int sizeIndex : {0, 1, 2}) {
        startWithSize(sizeIndex);
        const int n = doc().size, zoom = doc().zoom;
        SCOPED_TRACE(n);
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                paint(x, y, kGreen);
        recordPainting();
        const Plane image = doc().PicImage, mask = doc().PicMask;

        // Pressed and released inside cells: both corners snap to the grid.
        mark(2 * zoom + 1, 2 * zoom + 1, 5 * zoom + zoom - 1, 5 * zoom + 1);
        ASSERT_TRUE(sel().SelMarked);
        editor->editAction(7);

        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x) {
                const bool inside = x >= 2 && x <= 4 && y >= 2 && y <= 4;
                if (inside)
                    ASSERT_TRUE(doc().isTransparent(x, y)) << x << "," << y;
                else
                    ASSERT_EQ(pixelAt(x, y), std::make_pair(kGreen, kBlack)) << x << "," << y;
            }
        EXPECT_FALSE(sel().exists());
        EXPECT_EQ(sel().SelRect.Left, -1);
        EXPECT_EQ(undoSize(), 3u);
        EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));

        editor->editAction(0);
        EXPECT_EQ(doc().PicImage, image);
        EXPECT_EQ(doc().PicMask, mask);
    }
}

TEST_F(SelectionTest, DeleteOfAFloatingSelectionDropsItAndKeepsTheDocument) {
    paint(0, 0, kRed);
    recordPainting();
    const Plane image = doc().PicImage, mask = doc().PicMask;
    putOnClipboard(3, 3, kBlue);
    editor->editAction(5);
    ASSERT_TRUE(sel().SelFloating);

    editor->editAction(7);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(doc().PicMask, mask);
    EXPECT_EQ(undoSize(), 3u);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));
    EXPECT_EQ(editor->canvas.PicIcon, expectedPreview(false));
}

TEST_F(SelectionTest, SelectAllOverAFloatingSelectionCommitsItFirst) {
    putOnClipboard(2, 2, kRed);
    editor->editAction(5);
    editor->editAction(10);

    EXPECT_TRUE(sel().SelMarked);
    EXPECT_FALSE(sel().SelFloating);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kRed, kBlack));
    // The new marked selection holds the committed picture.
    EXPECT_EQ(doc().PicSelImage, doc().PicImage);
    EXPECT_EQ(doc().PicSelMask, doc().PicMask);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
}

TEST_F(SelectionTest, ChoosingAnotherToolCommitsTheSelection) {
    putOnClipboard(2, 1, kBlue);
    editor->editAction(5);
    EXPECT_EQ(editor->tools.currentTool, DrawingTools::Select);
    EXPECT_EQ(editor->tools.previousTool, DrawingTools::Pencil);

    editor->tools.chooseTool(DrawingTools::Line);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(pixelAt(1, 0), std::make_pair(kBlue, kBlack));
    EXPECT_TRUE(doc().isTransparent(0, 1));
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));
}

} // namespace
