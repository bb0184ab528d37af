#include "dialogs/FrmSnap.h"
#include "platform/Colour.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

namespace {

// A synthetic screen: the outline follows the pointer within it, other
// buttons are ignored, a left click takes the square inside the outline and
// Escape takes nothing.
TEST(CaptureWindow, TheOutlineFollowsThePointerWithinTheScreenAndALeftClickTakes) {
    QImage screen(120, 100, QImage::Format_RGB32);
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            screen.setPixel(x, y, qRgb(x, y, 7));
    for (const bool escape : {false, true}) {
        FrmSnap window(screen, QPoint(0, 0), 16, nullptr);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_EQ(window.cursor().shape(), Qt::BlankCursor);
        QTest::mouseMove(&window, QPoint(30, 20));
        const auto shown = [&](int x, int y) { return window.grab().toImage().pixel(x, y); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown(30, 20) != screen.pixel(30, 20); }, 1000));
        EXPECT_TRUE(shown(30, 20) == qRgb(0, 0, 0) || shown(30, 20) == qRgb(255, 255, 255));
        EXPECT_EQ(std::pair(shown(31, 21), shown(29, 20)),
                  std::pair(screen.pixel(31, 21), screen.pixel(29, 20)));
        QTest::mouseMove(&window, QPoint(119, 99));
        EXPECT_EQ(window.outlinePosition(), QPoint(102, 82));
        QTest::mouseClick(&window, Qt::RightButton, {}, QPoint(40, 50));
        EXPECT_TRUE(window.isVisible());
        if (escape)
            QTest::keyClick(&window, Qt::Key_Escape);
        else
            QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(40, 50));
        EXPECT_FALSE(window.isVisible() || window.Tmr->isActive());
        ASSERT_EQ(window.taken().has_value(), !escape);
        if (!escape) {
            EXPECT_EQ(std::tuple(window.taken()->width(), window.taken()->pixel(0, 0),
                                 window.taken()->pixel(15, 15)),
                      std::tuple(18, rgb(41, 51, 7), rgb(56, 66, 7)));
        }
    }
}

} // namespace
