#include "MainWindowFixture.h"

#include "app/AboutBox.h"
#include "app/PictureBox.h"
#include "app/ToolIcons.h"

#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

class MainWindowTest : public MainWindowFixture {};

TEST_F(MainWindowTest, StartsUntitledWith582By460CentredAThirdDown) {
    start();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), "Brevik - Untitled");
    EXPECT_EQ(window->size(), QSize(582, 460));
    const QRect screen = window->screen()->geometry();
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 582) / 2, (screen.height() - 460) / 3));
    // The client area starts under the menu bar; the canvas sits in it.
    EXPECT_EQ(window->centralWidget()->y(), window->menuBar()->height());
    EXPECT_EQ(window->PicMain->geometry(), QRect(11, 14, 385, 385));
    EXPECT_EQ(editor().doc.size, 32);
}

TEST_F(MainWindowTest, ToolButtonsCarryTheToolNamesAndNeverTakeTheFocus) {
    start();
    activate();
    const char* names[] = {"Select",
                           "Pencil",
                           "Erase",
                           "Sample",
                           "Flood",
                           "Line",
                           "Rectangle",
                           "Ellipse",
                           "Solid Rectangle",
                           "Solid Ellipse",
                           "Filled Rectangle",
                           "Filled Ellipse"};
    // Tools with a pointer of their own; the others use the Select tool's.
    const int pointerOf[] = {0, 1, 2, 3, 4, 0, 0, 0, 0, 0, 0, 0};
    QWidget* focusBefore = QApplication::focusWidget();
    for (int i = 0; i < 12; ++i) {
        QToolButton* button = window->OptTool[i];
        EXPECT_EQ(button->toolTip(), names[i]);
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_FALSE(button->hasFocus()) << i;
        EXPECT_EQ(QApplication::focusWidget(), focusBefore) << i;
        EXPECT_EQ(editor().tools.currentTool, i);
        int checked = 0;
        for (QToolButton* other : window->OptTool)
            checked += other->isChecked() ? 1 : 0;
        EXPECT_EQ(checked, 1);
        EXPECT_TRUE(button->isChecked());
        EXPECT_EQ(window->PicMain->cursor().pixmap().toImage(),
                  ToolIcons::cursor(pointerOf[i]).pixmap().toImage())
            << i;
    }
}

// Column x of the canvas, rows 1 .. zoom - 1: a grid line alternates black
// (even rows) and light grey; inside a cell there is white hatch.
bool isGridColumn(const QImage& canvas, int x, int zoom) {
    for (int y = 1; y < zoom; ++y)
        if (colourAt(canvas, x, y) != (y % 2 == 0 ? kBlack : 0xC0C0C0))
            return false;
    return true;
}

TEST_F(MainWindowTest, NewIconShortcutsRedrawTheCanvasAtTheirZoom) {
    start();
    activate();
    struct Case {
        Qt::Key key;
        int size;
        int zoom;
        QPoint previewAt;
    };
    const Case cases[] = {{Qt::Key_F1, 16, 24, {448, 30}},
                          {Qt::Key_F3, 48, 8, {432, 14}},
                          {Qt::Key_F2, 32, 12, {440, 22}}};
    for (const Case& c : cases) {
        QTest::keyClick(window.get(), c.key, Qt::ControlModifier);
        EXPECT_EQ(editor().doc.size, c.size);
        const QImage canvas = canvasOnScreen();
        for (int x : {0, 8, 12, 16, 24, 48, 72, 96, 360, 384}) {
            const bool onGrid = x % c.zoom == 0;
            EXPECT_EQ(isGridColumn(canvas, x, c.zoom), onGrid) << "zoom " << c.zoom << " x " << x;
        }
        EXPECT_EQ(window->PicIcon->geometry(), QRect(c.previewAt, QSize(c.size, c.size)));
    }
}

TEST_F(MainWindowTest, PointerOverTheCanvasShowsItsPixel) {
    start();
    QTest::mouseMove(window->PicMain, QPoint(65, 137));
    EXPECT_EQ(window->ReadoutXY->text(), "05, 11");
    editor().newIcon(0);
    QTest::mouseMove(window->PicMain, QPoint(383, 5));
    EXPECT_EQ(window->ReadoutXY->text(), "15, 00");
}

TEST_F(MainWindowTest, PencilClicksPaintThroughRealMouseEvents) {
    start();
    QTest::mouseClick(window->PicMain, Qt::LeftButton, {}, QPoint(30, 30));
    QTest::mouseClick(window->PicMain, Qt::RightButton, {}, QPoint(54, 30));
    EXPECT_EQ(editor().doc.PicImage.pixel(2, 2), kBlack);
    EXPECT_EQ(editor().doc.PicMask.pixel(2, 2), kBlack);
    EXPECT_EQ(editor().doc.PicImage.pixel(4, 2), kWhite);
    EXPECT_EQ(editor().doc.PicMask.pixel(4, 2), kBlack);

    const QImage canvas = canvasOnScreen();
    EXPECT_EQ(colourAt(canvas, 2 * 12 + 6, 2 * 12 + 6), kBlack);
    EXPECT_EQ(colourAt(canvas, 4 * 12 + 6, 2 * 12 + 6), kWhite);
    const QImage preview = previewOnScreen();
    EXPECT_EQ(colourAt(preview, 2, 2), kBlack);
    EXPECT_EQ(colourAt(preview, 4, 2), kWhite);

    // The middle button does nothing.
    const Plane before = editor().doc.PicImage;
    QTest::mouseClick(window->PicMain, Qt::MiddleButton, {}, QPoint(100, 100));
    EXPECT_EQ(editor().doc.PicImage, before);
}

TEST_F(MainWindowTest, PickersSetTheButtonColoursAndTheirSwatches) {
    start();
    // Mini palette, third column, fourth row: yellow, on the right button.
    QTest::mouseClick(window->PicMiniPal, Qt::RightButton, {}, QPoint(2 * 24 + 5, 3 * 13 + 5));
    EXPECT_EQ(editor().colours.value[1], static_cast<std::int32_t>(rgb(255, 255, 0)));
    EXPECT_EQ(editor().colours.value[0], static_cast<std::int32_t>(kBlack));
    const QImage right = window->PicRight->grab().toImage();
    EXPECT_EQ(right.size(), QSize(23, 12));
    EXPECT_EQ(colourAt(right, 0, 0), rgb(255, 255, 0));
    EXPECT_EQ(colourAt(right, 22, 11), rgb(255, 255, 0));

    QTest::mouseClick(window->PicScreen, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(editor().colours.value[0], kTransparentColour);
    EXPECT_EQ(window->PicLeft->grab().toImage(),
              window->PicScreen->grab().toImage()); // the 23 x 12 hatch

    // A drag that leaves the grey ramp keeps to its edge columns.
    QTest::mousePress(window->PicGreyPal, Qt::LeftButton, {}, QPoint(40, 10));
    QTest::mouseMove(window->PicGreyPal, QPoint(500, 10));
    EXPECT_EQ(editor().colours.value[0], static_cast<std::int32_t>(kWhite));
    QTest::mouseMove(window->PicGreyPal, QPoint(-60, 10));
    EXPECT_EQ(editor().colours.value[0], static_cast<std::int32_t>(kBlack));
    QTest::mouseRelease(window->PicGreyPal, Qt::LeftButton, {}, QPoint(-60, 10));
    EXPECT_EQ(colourAt(window->PicLeft->grab().toImage(), 10, 5), kBlack);
}

TEST_F(MainWindowTest, ClosingWithUnsavedChangesAndCancelKeepsTheWindow) {
    start();
    QTest::mouseClick(window->PicMain, Qt::LeftButton, {}, QPoint(30, 30));
    ASSERT_TRUE(editor().doc.modified);

    EXPECT_FALSE(window->close()); // no scripted answer: Cancel
    EXPECT_TRUE(window->isVisible());
    ASSERT_EQ(dialogs.promptTexts.size(), 1u);
    EXPECT_EQ(dialogs.promptTexts[0], "Save changes to Untitled.ico?");
    EXPECT_EQ(editor().doc.PicImage.pixel(2, 2), kBlack);
    EXPECT_TRUE(editor().doc.modified);

    dialogs.prompts.push_back(PromptAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, ExitRunsTheSameShutdown) {
    start();
    editor().doc.modified = true;
    window->menus.MnuExit->trigger();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(dialogs.promptTexts.size(), 1u);
}

TEST_F(MainWindowTest, OpenKeepsTheCanvasDisabledUntilTheTimerTicks) {
    start();
    window->menus.MnuOpen->trigger(); // the scripted file dialog cancels
    ASSERT_EQ(dialogs.fileModes.size(), 1u);
    EXPECT_EQ(dialogs.fileModes[0], FileDialogMode::Open);
    EXPECT_FALSE(window->PicMain->isEnabled());
    EXPECT_TRUE(window->TmrEnable->isActive());
    QMetaObject::invokeMethod(window->TmrEnable, "timeout");
    EXPECT_TRUE(window->PicMain->isEnabled());
    EXPECT_FALSE(window->TmrEnable->isActive());
}

TEST_F(MainWindowTest, CommandLineIsTakenAsItStands) {
    QFile notAnIcon(folder.filePath("picture.txt"));
    ASSERT_TRUE(notAnIcon.open(QIODevice::WriteOnly));
    notAnIcon.write("text");
    notAnIcon.close();
    start(folder.filePath("picture.txt"));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, "Brevik - Error");
    EXPECT_EQ(dialogs.messages[0].text, "Invalid file extension.");
    EXPECT_EQ(window->windowTitle(), "Brevik - Untitled");
}

TEST_F(MainWindowTest, DroppedFilesOpenOnlyTheFirst) {
    start();
    QStringList names = {"first.ico", "second.ico"};
    QList<QUrl> urls;
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("not an icon at all");
        urls << QUrl::fromLocalFile(file.fileName());
    }
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "first.ico is not a valid icon file.");
}

TEST_F(MainWindowTest, AboutShowsTheVersion) {
    start();
    window->menus.MnuAbout->trigger();
    auto* about = window->findChild<AboutBox*>();
    ASSERT_NE(about, nullptr);
    EXPECT_TRUE(about->isVisible());
    EXPECT_TRUE(about->findChild<QLabel*>("LblVersion")
                    ->text()
                    .startsWith(QStringLiteral("Version " BREVIK_TEST_VERSION " ")));
    about->close();
}

} // namespace
