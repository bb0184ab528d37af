#include "MainWindowFixture.h"
#include "fileio/ExtractFixtures.h"
#include "support/AniWriter.h"

#include "dialogs/FrmIcons.h"
#include "widgets/PictureBox.h"
#include "widgets/PlaneImage.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace {

// Two frames told apart by their pixels; step k shows frame k mod 2.
const std::vector<QByteArray> kFrames{patternIcon(32, 1), patternIcon(16, 2)};

QString writeAni(const QTemporaryDir& dir, const QString& name, quint32 steps) {
    std::vector<quint32> sequence;
    for (quint32 k = 0; k < steps; ++k)
        sequence.push_back(k % 2);
    QFile file(dir.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(AniWriter{kFrames, steps, sequence}.bytes());
    return file.fileName();
}

void clickAt(FrmIcons& dialog, int x, int y) {
    QTest::mouseClick(dialog.PicIcons, Qt::LeftButton, {}, QPoint(x, y));
}

TEST(FrmIcons, FiftyIconsFitFiveRowsAndTheFiftyFirstScrollsOneRow) {
    QTemporaryDir dir;
    QString folder;
    ScriptedDialogs dialogs;
    for (const int count : {50, 51}) {
        FrmIcons dialog(writeAni(dir, "steps.ani", count), dialogs, folder, nullptr);
        dialog.show();
        EXPECT_EQ(dialog.windowTitle(), QString("Sollent - steps.ani - %1 Icons").arg(count));
        EXPECT_EQ(dialog.Vsb->isEnabled(), count == 51);
        EXPECT_EQ(dialog.Vsb->maximum(), count == 51 ? 38 : 0);

        // Cell 7: its icon drawn over white and framed in black; the frame
        // around cell 0 is erased.
        clickAt(dialog, 7 * 38 + 20, 30);
        EXPECT_EQ(dialog.LblInfo->text(), "Icon No 8 Selected.");
        Plane cell(32, 32, kWhite);
        drawMasked(cell, 0, 0, shownAs(kFrames[1]).mask, shownAs(kFrames[1]).image);
        const QImage shown = dialog.PicIcons->image();
        const auto at = [&shown](int x, int y) { return shown.pixel(x, y) | 0xFF000000; };
        EXPECT_EQ(
            std::vector({at(7 * 38 + 1, 1), at(7 * 38 + 37, 37), at(1, 1), at(7 * 38 + 20, 9)}),
            std::vector({0xFF000000, 0xFF000000, 0xFFFFFFFF,
                         PlaneImage::toRgb(cell.pixel(17, 6)) | 0xFF000000}));
        if (count == 50)
            continue;
        // Scrolled down, the last row holds one icon: a click on the empty
        // cell beside it changes nothing, one on the icon chooses it.
        dialog.Vsb->setValue(38);
        clickAt(dialog, 3 * 38 + 20, 190 - 20);
        EXPECT_EQ(dialog.LblInfo->text(), "Icon No 8 Selected.");
        clickAt(dialog, 20, 190 - 20);
        EXPECT_EQ(dialog.LblInfo->text(), "Icon No 51 Selected.");
        QTest::mouseClick(dialog.CmdOk, Qt::LeftButton);
        EXPECT_FALSE(dialog.cancelled());
        EXPECT_EQ(dialog.choice().index, 50);
    }
}

TEST(FrmIcons, BrowseRefusesAFileWithoutIconsAndKeepsTheGrid) {
    QTemporaryDir dir;
    ScriptedDialogs dialogs;
    dialogs.files = {FileChoice{dir.filePath("none.dll"), "none.dll"},
                     FileChoice{writeAni(dir, "other.ani", 3), "other.ani"}};
    QString folder;
    FrmIcons dialog(writeAni(dir, "first.ani", 12), dialogs, folder, nullptr);
    const auto state = [&] { return dialog.windowTitle() + " / " + dialog.LblInfo->text(); };
    clickAt(dialog, 20, 60);
    QTest::mouseClick(dialog.CmdBrowse, Qt::LeftButton);
    EXPECT_EQ(state(), "Sollent - first.ani - 12 Icons / Icon No 11 Selected.");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title + ": " + dialogs.messages[0].text,
              "Sollent: none.dll contains no icons.");
    QTest::mouseClick(dialog.CmdBrowse, Qt::LeftButton);
    EXPECT_EQ(state(), "Sollent - other.ani - 3 Icons / Icon No 1 Selected.");
    EXPECT_EQ(dialogs.fileModes, std::vector(2, FileDialogMode::Extract));
    EXPECT_EQ(folder, dir.path());
}

// Which icon the command makes of the choice is ExtractCommandTest's; here
// Ctrl+E opens the browser at the start file and its answer reaches the core.
TEST(FrmIcons, CtrlEOpensTheBrowserAndOnlyOkGivesItsChoice) {
    QTemporaryDir dir;
    const QString ani = writeAni(dir, "cursor.ani", 4);
    for (const bool ok : {true, false}) {
        QtDialogsWindow shell;
        IconDocument& doc = shell.window.editor().doc();
        shell.window.editor().extraction().startFile = ani;
        const Plane before = doc.PicImage;
        const auto drive = [ok](FrmIcons& dialog) {
            clickAt(dialog, 38 + 20, 20); // step 1 shows frame 1
            QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        };
        EXPECT_TRUE(driveDialog<FrmIcons>(shell.window, Qt::ControlModifier | Qt::Key_E, drive));
        EXPECT_EQ(doc.PicImage, ok ? shownAs(kFrames[1]).image : before);
        doc.modified = false; // nothing to save, so no prompt can wait for a user
    }
}

} // namespace
