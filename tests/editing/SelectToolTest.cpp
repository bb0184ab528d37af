#include "SelectionFixture.h"

namespace {

class SelectToolTest : public SelectionFixture {};

TEST_F(SelectToolTest, ARectangleWithoutAreaIsDiscarded) {
    const struct {
        const char* name;
        int x1, y1, x2, y2;
    } cases[] = {
        {"click", 30, 30, 30, 30},
        {"within one cell", 25, 25, 34, 34},
        {"no height", 30, 30, 80, 35},
        {"no width", 30, 30, 35, 80},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        const Plane canvasBefore = editor->canvas.PicMain;
        mark(c.x1, c.y1, c.x2, c.y2);
        EXPECT_FALSE(sel().exists());
        EXPECT_FALSE(editor->tools.select.marking);
        EXPECT_EQ(sel().SelRect.Left, -1);
        EXPECT_EQ(sel().SelRect.Right, -1);
        EXPECT_EQ(editor->canvas.PicMain, canvasBefore);
        EXPECT_EQ(undoSize(), 1u);
    }
}

TEST_F(SelectToolTest, MarkingSnapsOrdersAndClampsTheCorners) {
    const struct {
        const char* name;
        int x1, y1, x2, y2;
        Selection::Rect rect;
    } cases[] = {
        {"forwards", 25, 37, 61, 50, {24, 36, 60, 48}},
        {"backwards", 80, 80, 20, 30, {12, 24, 72, 72}},
        {"past the right and bottom", 300, 310, 500, 600, {300, 300, 384, 384}},
        {"past the left and top", 100, 100, -50, -7, {0, 0, 96, 96}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        mark(c.x1, c.y1, c.x2, c.y2);
        ASSERT_TRUE(sel().SelMarked);
        EXPECT_EQ(sel().SelRect.Left, c.rect.Left);
        EXPECT_EQ(sel().SelRect.Top, c.rect.Top);
        EXPECT_EQ(sel().SelRect.Right, c.rect.Right);
        EXPECT_EQ(sel().SelRect.Bottom, c.rect.Bottom);
        EXPECT_EQ(doc().PicSelMask.width(), (c.rect.Right - c.rect.Left) / 12);
        EXPECT_EQ(doc().PicSelImage.height(), (c.rect.Bottom - c.rect.Top) / 12);
        EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
    }
}

TEST_F(SelectToolTest, TheMarqueeIsAThreePixelInvertingBox) {
    const Plane plain = editor->canvas.PicMain;
    mark(24, 24, 60, 48);
    const Plane& canvas = editor->canvas.PicMain;
    // Across the right side at row 36: columns 59 to 61 inverted, 58 and 62 not.
    EXPECT_EQ(canvas.pixel(58, 36), plain.pixel(58, 36));
    for (int x = 59; x <= 61; ++x)
        EXPECT_EQ(canvas.pixel(x, 36), plain.pixel(x, 36) ^ kWhite) << x;
    EXPECT_EQ(canvas.pixel(62, 36), plain.pixel(62, 36));
    // A corner is inverted once, not once per side.
    EXPECT_EQ(canvas.pixel(24, 24), plain.pixel(24, 24) ^ kWhite);
    // Deselect removes it again.
    editor->editAction(9);
    EXPECT_EQ(canvas, plain);
}

TEST_F(SelectToolTest, WhileMarkingOnlyTheLatestBoxIsShown) {
    selectPress(24, 24);
    selectMove(100, 100);
    selectMove(200, 150);
    selectMove(60, 48);
    EXPECT_TRUE(editor->tools.select.marking);
    EXPECT_EQ(editor->readoutToXY, "03 x 02");
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
    selectRelease(60, 48);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(editor->readoutToXY, "");
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
}

TEST_F(SelectToolTest, MarkingElsewhereCommitsTheOldSelectionWithoutARecord) {
    paint(1, 1, kRed);
    recordPainting();
    mark(0, 0, 36, 36);
    mark(120, 120, 180, 168);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(sel().SelRect.Left, 120);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kRed, kBlack));
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
}

TEST_F(SelectToolTest, MovingAMarkedSelectionLiftsItAndCommitsOnce) {
    paint(2, 2, kRed);
    paint(3, 3, kBlue);
    paint(6, 4, kGreen); // will lie under the moved selection's transparent corner
    recordPainting();
    const Plane image = doc().PicImage, mask = doc().PicMask;
    mark(24, 24, 48, 48); // icon pixels (2, 2) to (3, 3)

    selectPress(30, 30); // inside: the move starts and the source is cleared
    EXPECT_TRUE(sel().SelFloating);
    EXPECT_FALSE(sel().SelMarked);
    EXPECT_TRUE(editor->tools.select.dragging);
    EXPECT_TRUE(doc().isTransparent(2, 2));
    EXPECT_TRUE(doc().isTransparent(3, 3));

    selectMove(90, 90); // cells (7, 7) to (8, 8)
    selectMove(66, 54); // back to cells (5, 4) to (6, 5)
    const Selection::Rect& r = sel().SelRect;
    EXPECT_EQ(r.Left, 60);
    EXPECT_EQ(r.Top, 48);
    EXPECT_EQ(r.Right, 84);
    EXPECT_EQ(r.Bottom, 72);
    // Shown at the new place, on canvas and preview, with no trail; the
    // document does not have it yet.
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, false));
    EXPECT_EQ(editor->canvas.PicMain.pixel(66, 54), kRed);
    EXPECT_EQ(editor->canvas.PicIcon.pixel(5, 4), kRed);
    EXPECT_EQ(editor->canvas.PicIcon.pixel(7, 7), kButtonFace);
    EXPECT_EQ(editor->canvas.PicIcon, expectedPreview(true));
    EXPECT_TRUE(doc().isTransparent(5, 4));

    selectRelease(66, 54);
    EXPECT_FALSE(editor->tools.select.dragging);
    EXPECT_TRUE(doc().modified);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, true));
    EXPECT_EQ(undoSize(), 2u);

    editor->editAction(9);
    EXPECT_EQ(undoSize(), 3u);
    EXPECT_EQ(pixelAt(5, 4), std::make_pair(kRed, kBlack));
    EXPECT_EQ(pixelAt(6, 5), std::make_pair(kBlue, kBlack));
    EXPECT_EQ(pixelAt(6, 4), std::make_pair(kGreen, kBlack));
    EXPECT_TRUE(doc().isTransparent(5, 5));
    EXPECT_TRUE(doc().isTransparent(2, 2));
    EXPECT_TRUE(doc().isTransparent(3, 3));
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));

    editor->editAction(0);
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(doc().PicMask, mask);
    EXPECT_EQ(undoSize(), 2u);
}

TEST_F(SelectToolTest, AFloatingSelectionMovesAgainWithoutClearingWhatLiesUnderIt) {
    paint(5, 5, kGreen);
    recordPainting();
    clipboard.picture = Plane(2, 2, kWhite);
    clipboard.picture.setPixel(0, 0, kRed);
    editor->editAction(5); // floating at (0, 0): red, then three transparent pixels

    // Drag from cell (1, 1) to cell (5, 5): the selection covers (4, 4)-(5, 5).
    selectPress(12, 12);
    selectMove(60, 60);
    selectRelease(60, 60);
    EXPECT_EQ(sel().SelRect.Left, 48);
    EXPECT_EQ(sel().SelRect.Bottom, 72);

    // A second drag starts on it; the document under it is not cleared.
    selectPress(50, 50);
    EXPECT_EQ(pixelAt(5, 5), std::make_pair(kGreen, kBlack));
    selectMove(40, 40); // one cell up and left: (3, 3)-(4, 4)
    selectRelease(40, 40);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, true));

    editor->editAction(9);
    EXPECT_EQ(pixelAt(3, 3), std::make_pair(kRed, kBlack));
    EXPECT_EQ(pixelAt(5, 5), std::make_pair(kGreen, kBlack));
    EXPECT_TRUE(doc().isTransparent(4, 4));
    EXPECT_TRUE(doc().isTransparent(0, 0));
    EXPECT_EQ(undoSize(), 3u);
}

TEST_F(SelectToolTest, MovesAndReleasesWithoutAPressDoNothing) {
    const Plane canvasBefore = editor->canvas.PicMain;
    editor->tools.chooseTool(DrawingTools::Select);
    selectMove(100, 100);
    selectRelease(100, 100);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(editor->canvas.PicMain, canvasBefore);
}

class SelectToolThroughTheCanvasTest : public SelectionFixture {};

TEST_F(SelectToolThroughTheCanvasTest, EitherButtonMarksAndMovesOthersDoNothing) {
    paint(2, 2, kRed);
    recordPainting();
    editor->tools.chooseTool(DrawingTools::Select);

    drag(3, {{25, 25}, {61, 50}});
    EXPECT_FALSE(sel().exists());

    drag(1, {{25, 25}, {61, 50}});
    ASSERT_TRUE(sel().SelMarked);
    EXPECT_EQ(sel().SelRect.Left, 24);
    EXPECT_EQ(sel().SelRect.Right, 60);
    EXPECT_EQ(sel().SelRect.Bottom, 48);

    drag(2, {{30, 30}, {54, 42}}); // two cells right, one down
    EXPECT_TRUE(sel().SelFloating);
    EXPECT_EQ(sel().SelRect.Left, 48);
    EXPECT_EQ(sel().SelRect.Top, 36);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, true));
    // Selecting leaves the redo history alone; only the commit records.
    EXPECT_EQ(undoSize(), 2u);

    editor->tools.chooseTool(DrawingTools::Pencil);
    EXPECT_EQ(pixelAt(4, 3), std::make_pair(kRed, kBlack));
    EXPECT_TRUE(doc().isTransparent(2, 2));
    EXPECT_EQ(undoSize(), 3u);
}

} // namespace
