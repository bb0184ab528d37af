#include "dialogs/FrmSnap.h"
#include "app/MainWindowFixture.h"

#include <QTest>
#include <QTimer>

namespace {

// A synthetic screen whose every pixel has a colour of its own.
QImage numberedScreen() {
    QImage screen(120, 100, QImage::Format_RGB32);
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            screen.setPixel(x, y, qRgb(x, y, 7));
    return screen;
}

TEST(CaptureWindow, TheOutlineFollowsThePointerWithinTheScreenAndALeftClickTakes) {
    const QImage screen = numberedScreen();
    FrmSnap window(screen, QPoint(0, 0), 16, nullptr);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(window.CaptureSize, 18);
    EXPECT_TRUE(window.windowFlags().testFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window.cursor().shape(), Qt::BlankCursor);

    QTest::mouseMove(&window, QPoint(30, 20));
    EXPECT_EQ(window.outlinePosition(), QPoint(30, 20));
    // The outline's corner turns black or white within a tick or two; the
    // screen inside it shows through.
    const auto shown = [&](int x, int y) { return window.grab().toImage().pixel(x, y); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown(30, 20) != screen.pixel(30, 20); }, 1000));
    EXPECT_TRUE(shown(30, 20) == qRgb(0, 0, 0) || shown(30, 20) == qRgb(255, 255, 255));
    EXPECT_EQ(shown(31, 21), screen.pixel(31, 21));
    EXPECT_EQ(shown(29, 20), screen.pixel(29, 20));

    QTest::mouseMove(&window, QPoint(119, 99));
    EXPECT_EQ(window.outlinePosition(), QPoint(102, 82));
    QTest::mouseClick(&window, Qt::RightButton, {}, QPoint(40, 50));
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.taken());

    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(40, 50));
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.Tmr->isActive());
    ASSERT_TRUE(window.taken());
    const Plane& square = *window.taken();
    EXPECT_EQ(std::pair(square.width(), square.height()), std::pair(18, 18));
    EXPECT_EQ(square.pixel(0, 0), rgb(41, 51, 7));
    EXPECT_EQ(square.pixel(15, 15), rgb(56, 66, 7));
}

TEST(CaptureWindow, EscapeTakesNothing) {
    FrmSnap window(numberedScreen(), QPoint(0, 0), 32, nullptr);
    window.show();
    QTest::mouseMove(&window, QPoint(10, 10));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.taken());
}

} // namespace
