#include "app/PictureBox.h"
#include "editing/FrmPaste.h"
#include "fileio/FrmHotSpot.h"
#include "fileio/FrmMultiIconDialog.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A canvas whose every pixel differs from its neighbours, so a shifted or
// scaled copy shows.
Plane numberedCanvas() {
    Plane canvas(385, 385);
    for (int y = 0; y < 385; ++y)
        for (int x = 0; x < 385; ++x)
            canvas.setPixel(x, y, rgb(x % 256, y % 256, (x / 256) * 16 + (y / 256)));
    return canvas;
}

TEST(FrmHotSpot, ShowsTheCanvasBlockAndStartsAtZero) {
    const Plane canvas = numberedCanvas();
    FrmHotSpot dialog(canvas, 24, 15, nullptr);
    EXPECT_EQ(dialog.windowTitle(), "Select Hot Spot");
    EXPECT_EQ(dialog.LblHotX->text(), "00");
    EXPECT_EQ(dialog.LblHotY->text(), "00");
    const QImage shown = dialog.PicCursor->grab().toImage();
    ASSERT_EQ(shown.size(), QSize(385, 385));
    for (QPoint p : {QPoint(0, 0), QPoint(384, 0), QPoint(0, 384), QPoint(300, 271)}) {
        const Colour c = canvas.pixel(p.x(), p.y());
        EXPECT_EQ(shown.pixel(p), qRgb(redOf(c), greenOf(c), blueOf(c)));
    }
}

TEST(FrmHotSpot, OkAtOnceGivesTheTopLeftPixel) {
    FrmHotSpot dialog(Plane(385, 385, kWhite), 12, 31, nullptr);
    dialog.show();
    EXPECT_TRUE(dialog.cancelled());
    QTest::mouseClick(dialog.CmdOk, Qt::LeftButton);
    EXPECT_FALSE(dialog.cancelled());
    EXPECT_EQ(dialog.hotSpot().x, 0);
    EXPECT_EQ(dialog.hotSpot().y, 0);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(FrmHotSpot, LeftClicksChooseRightClicksDoNot) {
    FrmHotSpot dialog(Plane(385, 385, kWhite), 24, 15, nullptr);
    dialog.show();
    QTest::mouseClick(dialog.PicCursor, Qt::LeftButton, {}, QPoint(383, 130));
    EXPECT_EQ(dialog.LblHotX->text(), "15");
    EXPECT_EQ(dialog.LblHotY->text(), "05");
    QTest::mouseClick(dialog.PicCursor, Qt::RightButton, {}, QPoint(30, 30));
    EXPECT_EQ(dialog.LblHotX->text(), "15");
    EXPECT_EQ(dialog.LblHotY->text(), "05");

    QTest::mouseMove(dialog.PicCursor, QPoint(384, 50));
    EXPECT_EQ(dialog.readoutText(), "15, 02");
    EXPECT_EQ(dialog.LblHotY->text(), "05"); // moving does not choose

    QTest::mouseClick(dialog.CmdOk, Qt::LeftButton);
    EXPECT_EQ(dialog.hotSpot().x, 15);
    EXPECT_EQ(dialog.hotSpot().y, 5);
}

TEST(FrmHotSpot, CancelLeavesTheFlagRaised) {
    FrmHotSpot dialog(Plane(385, 385, kWhite), 8, 47, nullptr);
    dialog.show();
    QTest::mouseClick(dialog.PicCursor, Qt::LeftButton, {}, QPoint(100, 100));
    QTest::mouseClick(dialog.CmdCancel, Qt::LeftButton);
    EXPECT_TRUE(dialog.cancelled());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(FrmPaste, OffersTheTwoWaysToShrink) {
    struct Case {
        int option; // -1: leave the first one selected
        bool ok;
        int choice;
    };
    for (const Case& c : {Case{-1, true, 0}, Case{1, true, 1}, Case{1, false, -1}}) {
        FrmPaste dialog(nullptr);
        dialog.show();
        EXPECT_EQ(dialog.windowTitle(), "Paste Options");
        EXPECT_EQ(dialog.FraPasteOptions->title(), "Please Select An Option");
        EXPECT_EQ(dialog.OptPaste[0]->text(), "Shrink To Fit");
        EXPECT_EQ(dialog.OptPaste[1]->text(), "Shrink To Fit (Keep Aspect)");
        EXPECT_EQ(dialog.CmdOk->text(), "&Ok");
        EXPECT_EQ(dialog.CmdCancel->text(), "&Cancel");
        EXPECT_TRUE(dialog.OptPaste[0]->isChecked());
        EXPECT_EQ(dialog.PasteChoice(), -1);
        if (c.option >= 0)
            QTest::mouseClick(dialog.OptPaste[c.option], Qt::LeftButton);
        QTest::mouseClick(c.ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        EXPECT_EQ(dialog.PasteChoice(), c.choice);
        EXPECT_FALSE(dialog.isVisible());
    }
}

const QStringList kLines = {"16 x 16 ... 16 Color", "32 x 32 ... 256 Color",
                            "48 x 48 ... True Color"};

TEST(FrmMultiIconDialog, ListsTheImagesInAFixedPitchFont) {
    FrmMultiIconDialog dialog(kLines, nullptr);
    EXPECT_EQ(dialog.windowTitle(), "Multi Icon Resource");
    EXPECT_EQ(dialog.size(), QSize(211, 213));
    EXPECT_EQ(dialog.LblMessage->text(),
              "This File Contains More Than One Icon. Please Select The One You Would Like To "
              "Edit And Click Ok.");
    ASSERT_EQ(dialog.LstIcons->count(), 3);
    EXPECT_EQ(dialog.LstIcons->item(2)->text(), kLines[2]);
    EXPECT_EQ(dialog.LstIcons->currentRow(), 0);
    const QFontMetrics metrics(dialog.LstIcons->font());
    EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char('i')),
              metrics.horizontalAdvance(QLatin1Char('W')));
}

TEST(FrmMultiIconDialog, OkDoubleClickAndCancel) {
    {
        FrmMultiIconDialog dialog(kLines, nullptr);
        dialog.show();
        QTest::mouseClick(dialog.CmdOk, Qt::LeftButton);
        EXPECT_EQ(dialog.chosenLine(), 0);
    }
    {
        FrmMultiIconDialog dialog(kLines, nullptr);
        dialog.show();
        dialog.LstIcons->setCurrentRow(2);
        QTest::mouseClick(dialog.CmdOk, Qt::LeftButton);
        EXPECT_EQ(dialog.chosenLine(), 2);
    }
    {
        FrmMultiIconDialog dialog(kLines, nullptr);
        dialog.show();
        const QRect line = dialog.LstIcons->visualItemRect(dialog.LstIcons->item(1));
        // A double-click as the window system delivers it: press, release,
        // double-click, release.
        QWidget* lines = dialog.LstIcons->viewport();
        QTest::mouseClick(lines, Qt::LeftButton, {}, line.center());
        QTest::mouseDClick(lines, Qt::LeftButton, {}, line.center());
        QTest::mouseRelease(lines, Qt::LeftButton, {}, line.center());
        EXPECT_EQ(dialog.chosenLine(), 1);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    {
        FrmMultiIconDialog dialog(kLines, nullptr);
        dialog.show();
        dialog.LstIcons->setCurrentRow(2);
        QTest::mouseClick(dialog.CmdCancel, Qt::LeftButton);
        EXPECT_EQ(dialog.chosenLine(), -1);
    }
}

} // namespace
