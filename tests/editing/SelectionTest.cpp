#include "tools/ToolsFixture.h"

namespace {

class SelectionTest : public ToolsFixture {};

// The commit stamps the area onto itself, which turns an inverting pixel's
// colour black, and records nothing; Redo with nothing to redo still puts the
// recorded planes back.
TEST_F(SelectionTest, CommitOfAnUnmovedMarkedSelectionRecordsNothing) {
    for (const bool deselect : {true, false}) {
        SCOPED_TRACE(deselect ? "Deselect" : "marking elsewhere");
        startWithSize(1);
        paint(3, 3, kRed);
        paint(4, 3, kBlue, kWhite);
        paint(3, 5, kRed, kWhite); // outside the selection: left alone
        recordPainting();
        editor->doc().modified = false;
        mark(36, 36, 72, 48); // icon pixels (3, 3) to (5, 3)
        if (deselect)
            editor->editAction(Deselect);
        else
            mark(120, 120, 180, 168);
        EXPECT_EQ(std::pair(rect().Left, rect().Bottom),
                  deselect ? std::pair(-1, -1) : std::pair(120, 168));
        EXPECT_EQ(undoSize(), 2u);
        EXPECT_FALSE(doc().modified);
        expectPicture("r../.../i..", 3, 3, 'T');
        expectViews(false, !deselect);
        editor->editAction(Redo);
        EXPECT_EQ(pixelAt(4, 3), std::pair(kBlue, kWhite));
        EXPECT_EQ(undoSize(), 2u);
        expectViews();
    }
}

TEST_F(SelectionTest, DeleteOfAMarkedThreeByThreeAreaClearsExactlyThatArea) {
    for (int sizeIndex : {0, 1, 2}) {
        startWithSize(sizeIndex);
        SCOPED_TRACE(sizeIndex);
        draw("", 'g');
        editor->recordEdit();
        // Pressed and released inside cells: both corners snap to the grid.
        mark(at(2), at(2), at(5, zoom() - 1), at(5));
        editor->editAction(Delete);
        expectPicture("TTT/TTT/TTT", 2, 2, 'g');
        EXPECT_FALSE(sel().exists());
        EXPECT_EQ(undoSize(), 3u);
        expectViews(false, false);
    }
}

TEST_F(SelectionTest, SelectAllOrAnotherToolCommitsAFloatingSelectionAndDeleteDropsIt) {
    for (const char* step : {"Select All", "Line", "Delete"}) {
        SCOPED_TRACE(step);
        startWithSize(1);
        clipboard.picture = Plane(2, 1, kBlue);
        editor->editAction(Paste);
        EXPECT_EQ(editor->tools().currentTool, DrawingTools::Select);
        EXPECT_EQ(editor->tools().previousTool, DrawingTools::Pencil);
        const std::string s = step;
        if (s == "Line")
            editor->tools().chooseTool(DrawingTools::Line);
        else
            editor->editAction(s == "Delete" ? Delete : SelectAll);
        EXPECT_EQ(undoSize(), 2u);
        expectPicture(s == "Delete" ? "." : "bb", 0, 0, 'T');
        EXPECT_FALSE(sel().SelFloating);
        EXPECT_EQ(sel().SelMarked, s == "Select All");
        EXPECT_TRUE(s != "Select All" || doc().PicSelImage == doc().PicImage);
        expectViews(false, s == "Select All");
    }
}

} // namespace
