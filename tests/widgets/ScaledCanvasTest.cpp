// Run at a fractional and a whole screen scale (QT_SCALE_FACTOR, set by the
// test's registration): every cell of the canvas comes out the same number
// of device pixels, and every grid line one scaled pixel wide.
#include "widgets/PictureBox.h"

#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

// Where the black runs along the middle of the first row of cells start, and
// how wide each is.
std::vector<std::pair<int, int>> blackRuns(const QImage& image, int y) {
    std::vector<std::pair<int, int>> runs;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != qRgb(0, 0, 0))
            continue;
        if (!runs.empty() && runs.back().first + runs.back().second == x)
            ++runs.back().second;
        else
            runs.emplace_back(x, 1);
    }
    return runs;
}

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

        const auto runs = blackRuns(shown, span / 2);
        ASSERT_EQ(runs.size(), static_cast<std::size_t>(384 / zoom + 1));
        for (std::size_t k = 0; k < runs.size(); ++k) {
            EXPECT_EQ(runs[k].first, static_cast<int>(k) * span) << k;
            EXPECT_EQ(runs[k].second, k + 1 < runs.size() ? line : shown.width() - runs[k].first)
                << k;
        }
    }
}

} // namespace
