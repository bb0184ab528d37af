#include "MainWindowFixture.h"

#include "widgets/PictureBox.h"
#include "widgets/ToolIcons.h"

#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QToolButton>

namespace {

class MainWindowTest : public MainWindowFixture {};

TEST_F(MainWindowTest, StartsWithTheLayoutsClientAreaCentredAThirdDown) {
    // The canvas's margins all round: 11 at the sides, 14 above, 13 below.
    const QSize size = window->size();
    EXPECT_EQ(size, QSize(582, 412 + window->menuBar()->height()));
    const QRect screen = window->screen()->geometry();
    EXPECT_EQ(window->pos(),
              QPoint((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 3));
    EXPECT_EQ(window->PicMain->geometry(), QRect(11, 14, 385, 385));
    // No two labels share a pixel, and each text fits its box.
    QList<QLabel*> labels;
    for (const char* name : {"LblTransparent", "LblLeft", "LblRight"})
        labels << window->findChild<QLabel*>(name);
    ASSERT_FALSE(labels.contains(nullptr));
    for (QLabel* label : labels) {
        EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
        for (QLabel* other : labels)
            EXPECT_TRUE(other == label || !label->geometry().intersects(other->geometry()))
                << label->text().toStdString() << " and " << other->text().toStdString();
    }
    // The preview box's sunken edge is one pixel: shadow left, highlight right.
    const QImage client = window->centralWidget()->grab().toImage();
    const QPalette& shades = window->centralWidget()->palette();
    EXPECT_EQ(QList<QRgb>({client.pixel(408, 30), client.pixel(409, 30), client.pixel(503, 30)}),
              QList<QRgb>({shades.dark().color().rgb(), shades.window().color().rgb(),
                           shades.light().color().rgb()}));
}

TEST_F(MainWindowTest, ToolButtonsCarryTheToolNamesAndNeverTakeTheFocus) {
    QStringList names;
    QWidget* focusBefore = QApplication::focusWidget();
    for (int i = 0; i < 12; ++i) {
        QToolButton* button = window->OptTool[i];
        names << button->toolTip();
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(QApplication::focusWidget(), focusBefore) << i;
        EXPECT_EQ(editor().tools().currentTool, i);
        // Tools from Line on use the Select tool's pointer.
        EXPECT_EQ(window->PicMain->cursor().pixmap().toImage(),
                  ToolIcons::cursor(i < 5 ? i : 0).pixmap().toImage())
            << i;
    }
    EXPECT_EQ(names.join(", "),
              "Select, Pencil, Erase, Sample, Flood, Line, Rectangle, Ellipse, Solid Rectangle, "
              "Solid Ellipse, Filled Rectangle, Filled Ellipse");
    // The chosen tool (the last one) is pressed in: a shadow edge and a face
    // of its own, where the others are raised on the button face.
    const QImage chosen = window->OptTool[11]->grab().toImage();
    const QImage other = window->OptTool[10]->grab().toImage();
    const QPalette& palette = window->OptTool[11]->palette();
    EXPECT_EQ(std::tuple(chosen.pixel(0, 14), chosen.pixel(3, 3), other.pixel(3, 3)),
              std::tuple(palette.shadow().color().rgb(), palette.midlight().color().rgb(),
                         palette.button().color().rgb()));
    EXPECT_NE(palette.midlight().color(), palette.button().color());
}

// Where the preview goes for each size is the core's; here the shortcuts
// reach it and the preview box follows.
TEST_F(MainWindowTest, NewIconShortcutsMoveThePreviewBox) {
    const std::pair<Qt::Key, QRect> cases[] = {{Qt::Key_F1, {448, 30, 16, 16}},
                                               {Qt::Key_F3, {432, 14, 48, 48}},
                                               {Qt::Key_F2, {440, 22, 32, 32}}};
    for (const auto& [key, preview] : cases) {
        QTest::keyClick(window.get(), key, Qt::ControlModifier);
        EXPECT_EQ(window->PicIcon->geometry(), preview);
    }
}

TEST_F(MainWindowTest, MouseOnTheCanvasShowsItsPixelAndPaintsWithThePencil) {
    QTest::mouseMove(window->PicMain, QPoint(65, 137));
    EXPECT_EQ(window->ReadoutXY->text(), "05, 11");
    QTest::mouseClick(window->PicMain, Qt::LeftButton, {}, QPoint(30, 30));
    QTest::mouseClick(window->PicMain, Qt::RightButton, {}, QPoint(54, 30));
    QTest::mouseClick(window->PicMain, Qt::MiddleButton, {}, QPoint(100, 100)); // does nothing
    // What the pencil paints is the core's; here each button reaches it.
    const IconDocument& doc = editor().doc();
    EXPECT_EQ(
        std::tuple(doc.PicMask.pixel(2, 2), doc.PicImage.pixel(4, 2), doc.PicMask.pixel(8, 8)),
        std::tuple(kBlack, kWhite, kWhite));
    EXPECT_EQ(colourAt(window->PicMain, 4 * 12 + 6, 2 * 12 + 6), kWhite);
    EXPECT_EQ(colourAt(window->PicIcon, 4, 2), kWhite);
}

TEST_F(MainWindowTest, ClosingWithUnsavedChangesAndCancelKeepsTheWindow) {
    editor().doc().modified = true;
    window->menus.MnuExit->trigger(); // Exit runs the same shutdown
    EXPECT_FALSE(window->close());    // no scripted answer: Cancel
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(dialogs.promptTexts, std::vector<QString>(2, "Save changes to Untitled.ico?"));
    dialogs.prompts.push_back(PromptAnswer::No);
    EXPECT_TRUE(window->close());
}

TEST_F(MainWindowTest, OpenKeepsTheCanvasDisabledUntilTheTimerTicks) {
    window->menus.MnuOpen->trigger(); // the scripted file dialog cancels
    EXPECT_FALSE(window->PicMain->isEnabled());
    EXPECT_TRUE(window->TmrEnable->isActive());
    QMetaObject::invokeMethod(window->TmrEnable, "timeout");
    EXPECT_TRUE(window->PicMain->isEnabled());
    EXPECT_FALSE(window->TmrEnable->isActive());
}

// How each kind of pixel shows on that face is the core's CanvasTest.
TEST_F(MainWindowTest, StartUpOpensTheCommandLineAndTakesTheStylesButtonFace) {
    QPalette palette = QApplication::palette();
    const QPalette saved = palette;
    palette.setColor(QPalette::Button, QColor(30, 60, 90)); // a dark theme's face
    QApplication::setPalette(palette);
    frmMain dark(&dialogs, &clipboard);
    startActive(dark, folder, "dark.ini", folder.path()); // exists, but is no .ico
    QApplication::setPalette(saved);
    EXPECT_EQ(dark.editor().canvas().PicIcon, Plane(32, 32, rgb(30, 60, 90)));
    EXPECT_EQ(dark.windowTitle(), "Brevik - Untitled");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "Invalid file extension.");
}

TEST_F(MainWindowTest, ADropOpensItsFirstFile) {
    QFile file(folder.filePath("first.ico"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("not an icon") > 0);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName()), QUrl::fromLocalFile("/second.ico")});
    QDragEnterEvent enter(QPoint(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(200, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    ASSERT_EQ(dialogs.messages.size(), 1u); // only the first file is opened
    EXPECT_EQ(dialogs.messages[0].text, "first.ico is not a valid icon file.");
}

} // namespace
