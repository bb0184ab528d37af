#include "dialogs/FrmGrad.h"
#include "app/MainWindowFixture.h"
#include "widgets/PictureBox.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace {

constexpr Colour kRed = 0x0000FF, kGreen = 0x00FF00;

// The real "Gradient" dialog, opened by its shortcut on a window that asks
// with Qt dialogs, driven through its controls.
TEST(GradientDialog, TheChosenGradientGoesUnderTheTransparentPixelsOnOkOnly) {
    // The kind chosen (0 "Linear", 1 "Sperical"), Ok.
    const std::pair<int, bool> cases[] = {{0, true}, {1, true}, {1, false}};
    for (const auto& [kind, ok] : cases) {
        QtDialogsWindow shell;
        frmMain& window = shell.window;
        Editor& editor = window.editor();
        IconDocument& doc = editor.doc();
        doc.PicImage.fill(kBlack);
        doc.PicMask.fill(kWhite);
        doc.PicImage.setPixel(0, 0, kGreen); // the one opaque pixel
        doc.PicMask.setPixel(0, 0, kBlack);
        editor.refresh();
        editor.recordEdit();
        const Plane start = doc.PicImage, mask = doc.PicMask;

        bool shown = false;
        QTimer::singleShot(0, &window, [&] {
            auto* dialog = qobject_cast<FrmGrad*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            shown = true;
            EXPECT_EQ(dialog->windowTitle(), "Gradient");
            EXPECT_EQ(dialog->OptGradType[1]->text(), "Sperical");
            EXPECT_EQ(dialog->PicLinear->geometry(), QRect(19, 19, 32, 32));
            EXPECT_EQ(dialog->PicSpherical->geometry(), QRect(114, 19, 32, 32));
            EXPECT_EQ(dialog->LblAngle->text(), "000");
            // The start colour from the chooser; the end colour's chooser is
            // cancelled and leaves white.
            dialog->chooseColour = [](Colour) { return kRed; };
            QTest::mouseClick(dialog->PicStartColor, Qt::LeftButton);
            dialog->chooseColour = [](Colour) { return std::nullopt; };
            QTest::mouseClick(dialog->PicEndColor, Qt::LeftButton);
            // The upper arrow twice: 90.
            QTest::mouseClick(dialog->VsbAngle, Qt::LeftButton, {}, QPoint(8, 3));
            QTest::mouseClick(dialog->VsbAngle, Qt::LeftButton, {}, QPoint(8, 3));
            EXPECT_EQ(dialog->LblAngle->text(), "090");
            // A drag that stops between angles takes the nearest one.
            dialog->VsbAngle->setValue(110);
            EXPECT_EQ(dialog->LblAngle->text(), "090");
            QApplication::processEvents();
            // At 90 degrees red along the top row of the preview.
            EXPECT_EQ(std::pair(colourAt(dialog->PicLinear, 20, 0), dialog->endColour()),
                      std::pair(kRed, kWhite));
            QTest::mouseClick(dialog->OptGradType[kind], Qt::LeftButton);
            // The disc grows from the point clicked, red at its centre.
            QTest::mouseClick(dialog->PicSpherical, Qt::LeftButton, {}, QPoint(30, 2));
            EXPECT_EQ(dialog->centre(), QPoint(30, 2));
            const GradientFill::Ramp ramp(kRed, kWhite);
            EXPECT_EQ(std::pair(colourAt(dialog->PicSpherical, 30, 2),
                                colourAt(dialog->PicSpherical, 0, 31)),
                      std::pair(ramp.at(3), ramp.at(253)));
            QTest::mouseClick(ok ? dialog->CmdOk : dialog->CmdCancel, Qt::LeftButton);
        });
        QTest::keyClick(&window, Qt::Key_F4, Qt::ShiftModifier);
        EXPECT_TRUE(shown);

        Plane expected = start;
        if (ok) {
            const GradientFill::Ramp ramp(kRed, kWhite);
            expected = kind == 0 ? GradientFill::linear(32, 90, ramp)
                                 : GradientFill::spherical(32, 30, 2, ramp);
            expected.setPixel(0, 0, kGreen);
        }
        EXPECT_EQ(doc.PicImage, expected) << kind;
        EXPECT_EQ(doc.PicMask, mask);
        EXPECT_EQ(editor.undoRedo().UndoStack.size(), ok ? 3u : 2u);
    }
}

} // namespace
