#include "dialogs/FrmHotSpot.h"
#include "dialogs/FrmMultiIconDialog.h"
#include "dialogs/FrmPaste.h"
#include "widgets/PictureBox.h"
#include "widgets/PlaneImage.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

TEST(FrmHotSpot, ShowsTheCanvasAndLeftClicksChooseWhileOnlyOkLowersTheFlag) {
    Plane canvas(385, 385); // every pixel differs, so a shifted copy shows
    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x)
            canvas.setPixel(x, y, rgb(x % 256, y % 256, x / 256 * 16 + y / 256));
    for (const bool ok : {true, false}) {
        FrmHotSpot dialog(canvas, 24, 15, nullptr);
        dialog.show();
        EXPECT_EQ(dialog.windowTitle(), "Select Hot Spot");
        EXPECT_EQ(PlaneImage::toPlane(dialog.PicCursor->grab().toImage()), canvas);
        EXPECT_EQ(dialog.LblHotX->text() + dialog.LblHotY->text(), "0000");
        QTest::mouseClick(dialog.PicCursor, Qt::LeftButton, {}, QPoint(383, 130));
        QTest::mouseClick(dialog.PicCursor, Qt::RightButton, {}, QPoint(30, 30));
        // Moving does not choose; each round moves to a new point, as QTest
        // sends no move to where the pointer already is.
        QTest::mouseMove(dialog.PicCursor, QPoint(ok ? 384 : 380, 50));
        EXPECT_EQ(dialog.readoutText(), "15, 02");
        EXPECT_EQ(dialog.LblHotX->text() + ", " + dialog.LblHotY->text(), "15, 05");
        QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        EXPECT_EQ(dialog.cancelled(), !ok);
        EXPECT_EQ(std::pair(dialog.hotSpot().x, dialog.hotSpot().y), std::pair(15, 5));
    }
}

// Escape and the close box are QDialog's own way out, as Cancel is; the
// choice is only set by Ok.
TEST(FrmPaste, OffersTheTwoWaysToShrinkAndOnlyOkChooses) {
    // The option clicked (-1: none, the first stays selected), Ok, the choice.
    const std::tuple<int, bool, int> cases[] = {{-1, true, 0}, {1, true, 1}, {1, false, -1}};
    for (const auto& [option, ok, choice] : cases) {
        FrmPaste dialog(nullptr);
        dialog.show();
        EXPECT_EQ(QStringList({dialog.windowTitle(), dialog.FraPasteOptions->title(),
                               dialog.OptPaste[0]->text(), dialog.OptPaste[1]->text(),
                               dialog.CmdOk->text(), dialog.CmdCancel->text()}),
                  QStringList({"Paste Options", "Please Select An Option", "Shrink To Fit",
                               "Shrink To Fit (Keep Aspect)", "&Ok", "&Cancel"}));
        if (option >= 0)
            QTest::mouseClick(dialog.OptPaste[option], Qt::LeftButton);
        QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible()) << ok;
        EXPECT_EQ(dialog.PasteChoice(), choice) << ok;
    }
}

TEST(FrmMultiIconDialog, ListsTheImagesInAFixedPitchFontAndGivesTheChosenLine) {
    const QStringList lines = {"16 x 16 ... 16 Color", "32 x 32 ... 256 Color",
                               "48 x 48 ... True Color"};
    // Ok on line 0, Ok on line 2, a double-click on line 1, Cancel.
    for (int choice : {0, 2, 1, -1}) {
        FrmMultiIconDialog dialog(lines, nullptr);
        dialog.show();
        EXPECT_EQ(QStringList({dialog.windowTitle(), dialog.LblMessage->text(),
                               dialog.LstIcons->item(2)->text()}),
                  QStringList({"Multi Icon Resource",
                               "This File Contains More Than One Icon. Please Select The One "
                               "You Would Like To Edit And Click Ok.",
                               lines[2]}));
        EXPECT_EQ(dialog.size(), QSize(211, 213));
        const QFontMetrics metrics(dialog.LstIcons->font());
        EXPECT_EQ(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W'));
        EXPECT_EQ(dialog.LstIcons->currentRow(), 0);
        if (choice == 1) { // as the window system delivers a double-click
            QWidget* list = dialog.LstIcons->viewport();
            const QPoint at = dialog.LstIcons->visualItemRect(dialog.LstIcons->item(1)).center();
            QTest::mouseClick(list, Qt::LeftButton, {}, at);
            QTest::mouseDClick(list, Qt::LeftButton, {}, at);
            QTest::mouseRelease(list, Qt::LeftButton, {}, at);
        } else {
            dialog.LstIcons->setCurrentRow(choice < 0 ? 2 : choice);
            QTest::mouseClick(choice < 0 ? dialog.CmdCancel : dialog.CmdOk, Qt::LeftButton);
        }
        EXPECT_EQ(dialog.chosenLine(), choice);
    }
}

} // namespace
