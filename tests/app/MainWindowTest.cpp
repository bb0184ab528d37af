#include "MainWindowFixture.h"

#include "app/PictureBox.h"
#include "app/ToolIcons.h"

#include <QApplication>
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
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), "Brevik - Untitled");
    EXPECT_EQ(window->size(), QSize(582, 460));
    const QRect screen = window->screen()->geometry();
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 582) / 2, (screen.height() - 460) / 3));
    EXPECT_EQ(window->centralWidget()->y(), window->menuBar()->height());
    EXPECT_EQ(window->PicMain->geometry(), QRect(11, 14, 385, 385));
    // The boxes' sunken edge is one pixel: shadow on the left, highlight on
    // the right (the preview box, then the first read-out box).
    const QImage client = window->centralWidget()->grab().toImage();
    const QPalette& shades = window->centralWidget()->palette();
    for (const int y : {30, 80})
        EXPECT_EQ(QList<QRgb>({client.pixel(408, y), client.pixel(409, y), client.pixel(503, y)}),
                  QList<QRgb>({shades.dark().color().rgb(), shades.window().color().rgb(),
                               shades.light().color().rgb()}))
            << y;
}

TEST_F(MainWindowTest, ToolButtonsCarryTheToolNamesAndNeverTakeTheFocus) {
    activate();
    QStringList names;
    QWidget* focusBefore = QApplication::focusWidget();
    for (int i = 0; i < 12; ++i) {
        QToolButton* button = window->OptTool[i];
        names << button->toolTip();
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus) << i;
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(QApplication::focusWidget(), focusBefore) << i;
        EXPECT_EQ(editor().tools.currentTool, i);
        EXPECT_EQ(std::count_if(window->OptTool.begin(), window->OptTool.end(),
                                [](auto* b) { return b->isChecked(); }),
                  1);
        // Tools from Line on use the Select tool's pointer.
        EXPECT_EQ(window->PicMain->cursor().pixmap().toImage(),
                  ToolIcons::cursor(i < 5 ? i : 0).pixmap().toImage())
            << i;
    }
    EXPECT_EQ(names.join(", "),
              "Select, Pencil, Erase, Sample, Flood, Line, Rectangle, Ellipse, Solid Rectangle, "
              "Solid Ellipse, Filled Rectangle, Filled Ellipse");
}

TEST_F(MainWindowTest, NewIconShortcutsRedrawTheCanvasAtTheirZoom) {
    activate();
    const std::tuple<Qt::Key, int, int, QPoint> cases[] = {{Qt::Key_F1, 16, 24, {448, 30}},
                                                           {Qt::Key_F3, 48, 8, {432, 14}},
                                                           {Qt::Key_F2, 32, 12, {440, 22}}};
    for (const auto& [key, size, zoom, previewAt] : cases) {
        QTest::keyClick(window.get(), key, Qt::ControlModifier);
        EXPECT_EQ(editor().doc.size, size);
        EXPECT_EQ(window->PicIcon->geometry(), QRect(previewAt, QSize(size, size)));
        // A grid column alternates black (even rows) and light grey; a cell
        // holds white hatch.
        const QImage canvas = window->PicMain->grab().toImage();
        for (int x : {8, 12, 16, 24, 48, 72, 96, 360}) {
            bool grid = true;
            for (int y = 1; y < zoom; ++y)
                grid = grid && canvas.pixel(x, y) == (y % 2 ? 0xFFC0C0C0 : 0xFF000000);
            EXPECT_EQ(grid, x % zoom == 0) << "zoom " << zoom << " x " << x;
        }
    }
}

TEST_F(MainWindowTest, MouseOnTheCanvasShowsItsPixelAndPaintsWithThePencil) {
    QTest::mouseMove(window->PicMain, QPoint(65, 137));
    EXPECT_EQ(window->ReadoutXY->text(), "05, 11");
    QTest::mouseClick(window->PicMain, Qt::LeftButton, {}, QPoint(30, 30));
    QTest::mouseClick(window->PicMain, Qt::RightButton, {}, QPoint(54, 30));
    QTest::mouseClick(window->PicMain, Qt::MiddleButton, {}, QPoint(100, 100)); // does nothing
    Plane expected(32, 32, kBlack), mask(32, 32, kWhite);
    expected.setPixel(4, 2, kWhite);
    mask.setPixel(2, 2, kBlack);
    mask.setPixel(4, 2, kBlack);
    EXPECT_EQ(editor().doc.PicImage, expected);
    EXPECT_EQ(editor().doc.PicMask, mask);
    EXPECT_EQ(colourAt(window->PicMain, 2 * 12 + 6, 2 * 12 + 6), kBlack);
    EXPECT_EQ(colourAt(window->PicMain, 4 * 12 + 6, 2 * 12 + 6), kWhite);
    EXPECT_EQ(colourAt(window->PicIcon, 2, 2), kBlack);
    EXPECT_EQ(colourAt(window->PicIcon, 4, 2), kWhite);

    // Mini palette, third column, fourth row: yellow, on the right button.
    QTest::mouseClick(window->PicMiniPal, Qt::RightButton, {}, QPoint(2 * 24 + 5, 3 * 13 + 5));
    EXPECT_EQ(editor().colours.value[1], static_cast<std::int32_t>(rgb(255, 255, 0)));
    EXPECT_EQ(colourAt(window->PicRight, 22, 11), rgb(255, 255, 0));
}

TEST_F(MainWindowTest, ClosingWithUnsavedChangesAndCancelKeepsTheWindow) {
    editor().doc.modified = true;
    window->menus.MnuExit->trigger(); // Exit runs the same shutdown
    EXPECT_FALSE(window->close());    // no scripted answer: Cancel
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(dialogs.promptTexts, std::vector<QString>(2, "Save changes to Untitled.ico?"));
    EXPECT_TRUE(editor().doc.modified);
    dialogs.prompts.push_back(PromptAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, OpenKeepsTheCanvasDisabledUntilTheTimerTicks) {
    window->menus.MnuOpen->trigger(); // the scripted file dialog cancels
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::Open});
    EXPECT_FALSE(window->PicMain->isEnabled());
    EXPECT_TRUE(window->TmrEnable->isActive());
    QMetaObject::invokeMethod(window->TmrEnable, "timeout");
    EXPECT_TRUE(window->PicMain->isEnabled());
    EXPECT_FALSE(window->TmrEnable->isActive());
}

TEST_F(MainWindowTest, TheCommandLineAndDropsReachOpen) {
    QList<QUrl> urls;
    for (const char* name : {"first.ico", "second.ico", "picture.txt"}) {
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
    QApplication::sendEvent(window.get(), &drop); // only the first file is opened

    frmMain other(&dialogs, &clipboard);
    other.editor().registry = ModRegistry(folder.filePath("other.ini"));
    other.startUp(folder.filePath("picture.txt"));
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[0].text, "first.ico is not a valid icon file.");
    EXPECT_EQ(dialogs.messages[1].text, "Invalid file extension.");
    EXPECT_EQ(other.windowTitle(), "Brevik - Untitled");
}

TEST_F(MainWindowTest, AboutShowsTheVersion) {
    window->menus.MnuAbout->trigger();
    auto* version = window->findChild<QLabel*>("LblVersion");
    ASSERT_NE(version, nullptr);
    EXPECT_TRUE(version->text().startsWith("Version " BREVIK_TEST_VERSION " "));
}

} // namespace
