#include "app/QtUserDialogs.h"
#include "dialogs/FrmSnap.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// The capture over the real screen of an X server: a blue patch put on the
// screen is what a click inside it takes. With no X server the test skips.
TEST(CaptureOnXServer, TakesTheColourUnderTheOutlineFromTheRealScreen) {
    if (QGuiApplication::platformName() != "xcb")
        GTEST_SKIP() << "no X server";
    QWidget patch(nullptr, Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    patch.setGeometry(20, 20, 64, 64);
    patch.setStyleSheet("background: #0000ff");
    patch.show();
    ASSERT_TRUE(QTest::qWaitFor(
        [] {
            const QImage shown =
                QGuiApplication::primaryScreen()->grabWindow(0, 71, 71, 1, 1).toImage();
            return shown.pixelColor(0, 0) == QColor(0, 0, 255);
        },
        3000));
    QTimer clicker; // the window opens inside captureScreen
    QObject::connect(&clicker, &QTimer::timeout, [] {
        if (auto* snap = qobject_cast<FrmSnap*>(QApplication::activeModalWidget()))
            QTest::mouseClick(snap, Qt::LeftButton, {}, QPoint(39, 39) - snap->pos());
    });
    clicker.start(10);
    const std::optional<Plane> square = QtUserDialogs(nullptr).captureScreen(32);
    EXPECT_EQ(square, Plane(34, 34, rgb(0, 0, 255)));
}

} // namespace
