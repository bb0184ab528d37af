#include "dialogs/FrmColAdj.h"
#include "app/MainWindowFixture.h"
#include "widgets/PictureBox.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace {

// The real "Color Adjustment" dialog, opened by its shortcut on a window
// that asks with Qt dialogs.
TEST(ColorAdjustmentDialog, StepsThePreviewAndOkWritesTheIconWhileCancelWritesNothing) {
    for (const bool ok : {true, false}) {
        QtDialogsWindow shell;
        frmMain& window = shell.window;
        Editor& editor = window.editor();
        IconDocument& doc = editor.doc();
        doc.PicImage.fill(rgb(250, 100, 0));
        doc.PicMask.fill(kBlack);
        doc.PicImage.setPixel(1, 0, kBlack); // transparent
        doc.PicMask.setPixel(1, 0, kWhite);
        doc.PicImage.setPixel(2, 0, 0x0000FF); // inverting red
        doc.PicMask.setPixel(2, 0, kWhite);
        editor.refresh();
        editor.recordEdit();
        const Plane start = doc.PicImage, mask = doc.PicMask;

        bool shown = false;
        QTimer::singleShot(0, &window, [&] {
            auto* dialog = qobject_cast<FrmColAdj*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            shown = true;
            EXPECT_EQ(dialog->windowTitle(), "Color Adjustment");
            EXPECT_EQ(dialog->PicShade->geometry(), QRect(134, 19, 32, 32));
            // The upper arrow of the brightness spinner, twice, and the lower
            // arrow of the blue one: 250 stops at 255, blue takes one step.
            QTest::mouseClick(dialog->VsbBrightness, Qt::LeftButton, {}, QPoint(8, 2));
            QTest::mouseClick(dialog->VsbBrightness, Qt::LeftButton, {}, QPoint(8, 2));
            QTest::mouseClick(dialog->VsbBlue, Qt::LeftButton, {}, QPoint(8, 11));
            QApplication::processEvents();
            EXPECT_EQ(dialog->LblBrightness->text() + " " + dialog->LblBlue->text(), "10 -5");
            const Colour face = dialog->previewBackground();
            EXPECT_EQ(
                std::vector({colourAt(dialog->PicShade, 0, 0), colourAt(dialog->PicShade, 1, 0),
                             colourAt(dialog->PicShade, 2, 0)}),
                std::vector({rgb(255, 110, 5), face, face ^ 0x0000FF}));
            QTest::mouseClick(ok ? dialog->CmdOk : dialog->CmdCancel, Qt::LeftButton);
        });
        QTest::keyClick(&window, Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_TRUE(shown);
        Plane expected = ok ? Plane(32, 32, rgb(255, 110, 5)) : start;
        expected.setPixel(1, 0, kBlack);
        expected.setPixel(2, 0, 0x0000FF);
        EXPECT_EQ(doc.PicImage, expected);
        EXPECT_EQ(doc.PicMask, mask);
        EXPECT_EQ(editor.undoRedo().UndoStack.size(), ok ? 3u : 2u);
    }
}

} // namespace
