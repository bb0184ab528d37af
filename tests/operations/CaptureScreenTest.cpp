#include "app/MainWindowFixture.h"
#include "dialogs/FrmSnap.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace {

// Effects > Capture over the real screen of an X server: a blue patch put on
// screen is what the icon takes, every pixel opaque. With no X server the
// test skips.
TEST(CaptureOnXServer, TakesTheColourUnderTheOutlineFromTheRealScreen) {
    if (QGuiApplication::platformName() != "xcb")
        GTEST_SKIP() << "no X server";
    const QColor blue(0, 0, 255);
    QWidget patch(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                               Qt::X11BypassWindowManagerHint);
    patch.setGeometry(20, 20, 64, 64);
    patch.setStyleSheet("background: #0000ff");
    patch.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&patch));
    QScreen* screen = QGuiApplication::primaryScreen();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return screen->grabWindow(0, 71, 71, 1, 1).toImage().pixelColor(0, 0) == blue; },
        3000));

    QTemporaryDir folder;
    MemoryClipboard clipboard;
    frmMain window(nullptr, &clipboard);
    window.editor().registry() = ModRegistry(folder.filePath("store.ini"));
    window.startUp({});
    window.show();
    Editor& editor = window.editor();
    editor.doc().PicMask.fill(kWhite); // all transparent before
    // The command lets events run before the window opens, so the click
    // waits for the window.
    bool shown = false;
    QTimer clicker;
    QObject::connect(&clicker, &QTimer::timeout, [&] {
        auto* snap = qobject_cast<FrmSnap*>(QApplication::activeModalWidget());
        if (!snap || shown)
            return;
        shown = true;
        const QPoint release = QPoint(39, 39) - snap->geometry().topLeft();
        QTest::mouseMove(snap, release);
        QTest::mouseClick(snap, Qt::LeftButton, {}, release);
    });
    clicker.start(10);
    window.editor().operations().fxAction(FxAction::Capture);
    ASSERT_TRUE(shown);
    EXPECT_EQ(editor.doc().PicImage, Plane(32, 32, rgb(0, 0, 255)));
    EXPECT_EQ(editor.doc().PicMask, Plane(32, 32, kBlack));
}

} // namespace

int main(int argc, char** argv) {
    // An X server's screen when there is one, else the offscreen platform.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
