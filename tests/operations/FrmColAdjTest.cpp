#include "dialogs/FrmColAdj.h"
#include "app/MainWindowFixture.h"
#include "widgets/PictureBox.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace {

// The real "Color Adjustment" dialog opened by its shortcut: its spinners
// reach the adjustment and the preview, and only Ok writes the icon. What
// the steps do to each kind of pixel is the adjustment's own test.
TEST(ColorAdjustmentDialog, StepsThePreviewAndOkWritesTheIconWhileCancelWritesNothing) {
    for (const bool ok : {true, false}) {
        QtDialogsWindow shell;
        IconDocument& doc = shell.window.editor().doc();
        doc.PicImage.fill(rgb(250, 100, 0));
        doc.PicMask.fill(kBlack);
        const Plane start = doc.PicImage;
        const bool came = driveDialog<FrmColAdj>(
            shell.window, Qt::ShiftModifier | Qt::Key_F3, [ok = ok](FrmColAdj& dialog) {
                EXPECT_EQ(dialog.windowTitle(), "Color Adjustment");
                EXPECT_EQ(dialog.PicShade->geometry(), QRect(134, 19, 32, 32));
                // The upper arrow of the brightness spinner, twice, and the
                // lower arrow of the blue one.
                QTest::mouseClick(dialog.VsbBrightness, Qt::LeftButton, {}, QPoint(8, 2));
                QTest::mouseClick(dialog.VsbBrightness, Qt::LeftButton, {}, QPoint(8, 2));
                QTest::mouseClick(dialog.VsbBlue, Qt::LeftButton, {}, QPoint(8, 11));
                QApplication::processEvents();
                EXPECT_EQ(dialog.LblBrightness->text() + " " + dialog.LblBlue->text(), "10 -5");
                EXPECT_EQ(colourAt(dialog.PicShade, 5, 5), rgb(255, 110, 5));
                QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
            });
        EXPECT_TRUE(came);
        EXPECT_EQ(doc.PicImage, ok ? Plane(32, 32, rgb(255, 110, 5)) : start);
    }
}

} // namespace
