#include "tools/ToolsFixture.h"

namespace {

class SelectionTest : public ToolsFixture {};

// The commit stamps the area onto itself, which turns an inverting pixel's
// colour black, and records nothing; Redo with nothing to redo still puts the
// recorded planes back. A new mark starting a cell past the right or bottom
// edge commits the old one as Deselect does.
TEST_F(SelectionTest, CommitOfAnUnmovedMarkedSelectionRecordsNothing) {
    for (const auto& [x, y] : {std::pair(-1, -1), std::pair(84, 36), std::pair(36, 60)}) {
        SCOPED_TRACE(testing::Message() << x << ", " << y);
        startWith(1, "/.../.../...ri/.../...i", 'T'); // (3, 5) lies outside the mark
        editor->doc().modified = false;
        mark(36, 36, 72, 48); // icon pixels (3, 3) to (5, 3)
        if (x < 0)
            editor->editAction(Deselect);
        else
            mark(x, y, 180, 168);
        EXPECT_EQ(std::pair(rect().Left, rect().Top), std::pair(x, y));
        EXPECT_FALSE(doc().modified);
        expectPicture("r../.../i..", 3, 3, 'T');
        expectViews(false, x >= 0);
        editor->editAction(Redo);
        expectPicture("ri./.../i..", 3, 3, 'T');
    }
}

// The right button marks as the left one does. A rectangle without area is
// no selection.
TEST_F(SelectionTest, MarkingSnapsOrdersAndClampsTheCornersAndShowsOnlyTheLatestBox) {
    const Selection::Rect none;
    const struct {
        const char* name;
        int button, x1, y1, x2, y2;
        Selection::Rect rect;
        const char* size;
    } cases[] = {
        {"forwards", 1, 25, 37, 61, 50, {24, 36, 60, 48}, "03 x 01"},
        {"backwards, right button", 2, 80, 80, 20, 30, {12, 24, 72, 72}, "05 x 04"},
        {"past the right and bottom", 1, 300, 310, 500, 600, {300, 300, 384, 384}, "07 x 07"},
        {"past the left and top", 1, 100, 100, -50, -7, {0, 0, 96, 96}, "08 x 08"},
        {"within one cell", 1, 25, 25, 34, 34, none, "00 x 00"},
        {"no height", 1, 30, 30, 80, 35, none, "04 x 00"},
        {"no width", 1, 30, 30, 35, 80, none, "00 x 04"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        editor->tools().chooseTool(DrawingTools::Select);
        press(c.button, c.x1, c.y1);
        move(c.button, 200, 150);
        move(c.button, c.x2, c.y2);
        EXPECT_EQ(editor->readoutToXY(), c.size);
        expectViews(false, true);
        release(c.button, c.x2, c.y2);
        EXPECT_FALSE(editor->tools().select.marking);
        EXPECT_EQ(editor->readoutToXY(), "");
        EXPECT_EQ(std::tuple(rect().Left, rect().Top, rect().Right, rect().Bottom),
                  std::tuple(c.rect.Left, c.rect.Top, c.rect.Right, c.rect.Bottom));
        EXPECT_EQ(sel().SelMarked, c.rect.Left >= 0);
        expectViews(false, sel().SelMarked);
    }
}

TEST_F(SelectionTest, AMovedSelectionCommitsOnceWhereItFloatsAsEveryWayToEndOneDoes) {
    // (6, 4) will lie under the moved selection's transparent corner.
    startWith(1, "/../..r/...b/......g", 'T');
    mark(24, 24, 48, 48); // icon pixels (2, 2) to (3, 3)

    // SelRect's right and bottom edges are the corners of the cells just past
    // the marked ones, and count as inside: a press on its corner starts the
    // move, which clears the source.
    press(1, 59, 59);
    move(1, -6, 100); // the pointer may take the selection off the canvas
    EXPECT_EQ(std::pair(rect().Left, rect().Right), std::pair(-24, 0));
    move(1, 114, 114); // cells (7, 7) to (8, 8)
    move(1, 90, 78);   // back to cells (5, 4) to (6, 5)
    EXPECT_EQ(std::tuple(rect().Left, rect().Top, rect().Right, rect().Bottom),
              std::tuple(60, 48, 84, 72));
    // Shown at the new place with no trail; the document does not have it yet.
    expectViews(true, false);
    EXPECT_TRUE(doc().isTransparent(5, 4));

    editor->doc().modified = false; // the lift has modified it already
    release(1, 90, 78);
    EXPECT_TRUE(doc().modified);
    expectViews(true, true);
    EXPECT_EQ(undoSize(), 2u);
    // Floating now, it moves again without clearing what lies under it; the
    // right button moves it as well.
    drag(2, {{70, 60}, {58, 48}});

    // A paste puts it down where it was moved to before the new picture
    // floats, at the top-left.
    clipboard.picture = Plane(1, 1, kBlue);
    editor->editAction(Paste);
    EXPECT_EQ(undoSize(), 3u);
    // Another tool commits a floating selection, and a paste goes back to
    // Select; Delete drops what floats, and records that.
    editor->tools().chooseTool(DrawingTools::Line);
    clipboard.picture = Plane(2, 1, kRed);
    editor->editAction(Paste);
    EXPECT_EQ(editor->tools().currentTool, DrawingTools::Select);
    EXPECT_EQ(editor->tools().previousTool, DrawingTools::Line);
    editor->editAction(Delete);
    EXPECT_EQ(std::pair(undoSize(), sel().SelFloating), std::pair(std::size_t{5}, false));
    expectPicture("b///....r/.....bg", 0, 0, 'T');
    // Select All commits what floats and marks the whole icon.
    editor->editAction(Paste);
    editor->editAction(SelectAll);
    EXPECT_EQ(std::pair(undoSize(), sel().SelFloating), std::pair(std::size_t{6}, false));
    EXPECT_TRUE(sel().SelMarked && doc().PicSelImage == doc().PicImage);
    expectPicture("rr///....r/.....bg", 0, 0, 'T');
    expectViews(false, true);
}

} // namespace
