#include "widgets/PictureBox.h"

#include <QCursor>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A confined picture holds the pointer inside itself while a button is down,
// and reports the nearest point on its edge; with no button down the pointer
// goes where it likes.
TEST(PictureBoxTest, AConfinedPictureHoldsThePointerWhileAButtonIsDown) {
    QWidget window;
    window.resize(300, 300);
    PictureBox box(QStringLiteral("PicPal"), &window);
    box.move(100, 100);
    box.setPlane(Plane(51, 40, kWhite));
    box.setConfined(true);
    box.setMouseTracking(true);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QSignalSpy moves(&box, &PictureBox::mouseMove);

    struct Case {
        QPoint to; // where the mouse went from (50, 20), in the picture's pixels
        Qt::MouseButtons held;
        QPoint reported; // what the picture reports
        QPoint pointer;  // where the pointer is afterwards, in the picture
    };
    const Case cases[] = {
        {{300, 20}, Qt::LeftButton, {50, 20}, {50, 20}},
        {{-40, -9}, Qt::RightButton, {0, 0}, {0, 0}},
        {{25, 90}, Qt::LeftButton, {25, 39}, {25, 39}},
        {{10, 10}, Qt::LeftButton, {10, 10}, {50, 20}}, // inside: the pointer is left alone
        {{300, 20}, Qt::NoButton, {300, 20}, {50, 20}},
    };
    for (const Case& c : cases) {
        QCursor::setPos(box.mapToGlobal(QPoint(50, 20)));
        QMouseEvent move(QEvent::MouseMove, QPointF(c.to), QPointF(box.mapToGlobal(c.to)),
                         Qt::NoButton, c.held, Qt::NoModifier);
        QApplication::sendEvent(&box, &move);
        ASSERT_FALSE(moves.isEmpty());
        EXPECT_EQ(moves.takeLast().at(1).toPointF(), QPointF(c.reported))
            << c.to.x() << c.held.toInt();
        EXPECT_EQ(QCursor::pos(), box.mapToGlobal(c.pointer)) << c.to.x() << c.held.toInt();
    }
}

} // namespace
