// Run at a fractional and a whole screen scale (QT_SCALE_FACTOR, set by the
// test's registration): every cell of the canvas comes out the same number
// of device pixels, and every grid line one scaled pixel wide.
#include "widgets/PictureBox.h"

#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ScaledCanvasTest, EveryCellIsTheSameWidthAtTheScreensScale) {
    for (const int zoom : {24, 12, 8}) {
        SCOPED_TRACE(zoom);
        Plane grid(385, 385, kWhite);
        for (int i = 0; i <= 384; i += zoom)
            for (int j = 0; j < 385; ++j) {
                grid.setPixel(i, j, kBlack);
                grid.setPixel(j, i, kBlack);
            }
        PictureBox canvas(QStringLiteral("PicMain"), nullptr);
        canvas.setCellSize(zoom);
        canvas.setPlane(grid);
        canvas.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&canvas));
        const QImage shown = canvas.grab().toImage();
        const qreal scale = shown.devicePixelRatio();
        ASSERT_NE(scale, 1.0) << "run with QT_SCALE_FACTOR";
        const int span = qRound(zoom * scale), line = static_cast<int>(scale);

        // Along the middle of the first row of cells a grid line starts every
        // span pixels; the last one runs on to the edge.
        std::string row, expected;
        for (int x = 0; x < shown.width(); ++x) {
            row += shown.pixel(x, span / 2) == qRgb(0, 0, 0) ? '#' : '.';
            expected += x % span < line || x >= 384 / zoom * span ? '#' : '.';
        }
        EXPECT_EQ(row, expected);
    }
}

} // namespace
