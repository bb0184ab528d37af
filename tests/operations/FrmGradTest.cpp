#include "dialogs/FrmGrad.h"
#include "app/MainWindowFixture.h"
#include "widgets/PictureBox.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {

constexpr Colour kRed = 0x0000FF;

// The real "Gradient" dialog opened by its shortcut on a new, transparent
// icon, driven through its controls. The gradients' pixels and where they go
// in the icon are the core's tests; here the controls reach them.
TEST(GradientDialog, TheControlsChooseTheGradientAndOnlyOkPutsItInTheIcon) {
    // The kind chosen (0 "Linear", 1 "Sperical"), Ok.
    const std::pair<int, bool> cases[] = {{0, true}, {1, true}, {1, false}};
    const GradientFill::Ramp ramp(kRed, kWhite);
    for (const auto& [kind, ok] : cases) {
        QtDialogsWindow shell;
        const Plane start = shell.window.editor().doc().PicImage;
        const auto drive = [kind = kind, ok = ok, &ramp](FrmGrad& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Gradient");
            EXPECT_EQ(dialog.OptGradType[1]->text(), "Sperical");
            EXPECT_EQ(dialog.PicSpherical->geometry(), QRect(114, 19, 32, 32));
            // The start colour from the chooser; the end colour's chooser is
            // cancelled and leaves white.
            dialog.chooseColour = [](Colour) { return kRed; };
            QTest::mouseClick(dialog.PicStartColor, Qt::LeftButton);
            dialog.chooseColour = [](Colour) { return std::nullopt; };
            QTest::mouseClick(dialog.PicEndColor, Qt::LeftButton);
            // The upper arrow twice: 90; a drag that stops between angles
            // takes the nearest one.
            QTest::mouseClick(dialog.VsbAngle, Qt::LeftButton, {}, QPoint(8, 3));
            QTest::mouseClick(dialog.VsbAngle, Qt::LeftButton, {}, QPoint(8, 3));
            dialog.VsbAngle->setValue(110);
            EXPECT_EQ(dialog.LblAngle->text(), "090");
            QApplication::processEvents();
            EXPECT_EQ(colourAt(dialog.PicLinear, 20, 0), kRed);
            QTest::mouseClick(dialog.OptGradType[kind], Qt::LeftButton);
            // The disc grows anew from the point clicked.
            QTest::mouseClick(dialog.PicSpherical, Qt::LeftButton, {}, QPoint(30, 2));
            EXPECT_EQ(colourAt(dialog.PicSpherical, 30, 2), ramp.at(3));
            QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        };
        EXPECT_TRUE(driveDialog<FrmGrad>(shell.window, Qt::ShiftModifier | Qt::Key_F4, drive));
        const Plane chosen = kind == 0 ? GradientFill::linear(32, 90, ramp)
                                       : GradientFill::spherical(32, 30, 2, ramp);
        EXPECT_EQ(shell.window.editor().doc().PicImage, ok ? chosen : start) << kind;
    }
}

} // namespace
