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
        // The steps end a hair off the exact quotient: 4.5005, 7.4994 and
        // 11.4958. One division (4.5, 7.5, 11.51) would round to 4 or 5, 8 and
        // 12; the same steps in double precision to 4, 7 and 12.
        {32, 9, 16, 16, 5},
        {32, 15, 16, 16, 7},
        {57, 41, 16, 16, 11},
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
