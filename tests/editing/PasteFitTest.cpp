#include "editing/PasteFit.h"

#include <gtest/gtest.h>

namespace {

TEST(PasteFitTest, ShrinksTheLargerSideToTheIconKeepingTheAspect) {
    const struct {
        int pictureWidth, pictureHeight, icon, width, height;
    } cases[] = {
        {10, 20, 16, 8, 16},  // taller than wide: the height is tested
        {17, 17, 16, 16, 16}, // one pixel too large
        {49, 10, 48, 48, 10}, // 9.795 rounds up
        {1000, 1, 48, 48, 1}, // the short side never drops below one pixel
        {1, 1000, 16, 1, 16},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.pictureWidth << " x " << c.pictureHeight);
        const PasteFit fit =
            PasteFit::keepingAspect(c.pictureWidth, c.pictureHeight, c.icon, c.icon);
        EXPECT_EQ(fit.width, c.width);
        EXPECT_EQ(fit.height, c.height);
    }
}

} // namespace
