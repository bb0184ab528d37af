#include "canvas/Coordinates.h"

#include <gtest/gtest.h>

namespace {

TEST(CoordinatesTest, CanvasPixelsMapToCellsCornersAndCentres) {
    const struct {
        int v, zoom, pixel, corner, centre;
    } cases[] = {
        {0, 24, 0, 0, 12}, {23, 24, 0, 0, 12},     {24, 24, 1, 24, 36},     {383, 24, 15, 360, 372},
        {11, 12, 0, 0, 6}, {12, 12, 1, 12, 18},    {383, 12, 31, 372, 378}, {7, 8, 0, 0, 4},
        {8, 8, 1, 8, 12},  {383, 8, 47, 376, 380}, {384, 8, 48, 384, 388},  {-11, 12, 0, 0, 6},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.v << " at zoom " << c.zoom);
        EXPECT_EQ(Coordinates::iconPixel(c.v, c.zoom), c.pixel);
        EXPECT_EQ(Coordinates::cellCorner(c.v, c.zoom), c.corner);
        EXPECT_EQ(Coordinates::cellCentre(c.v, c.zoom), c.centre);
    }
}

TEST(CoordinatesTest, ReadOutsShowAtLeastTwoDigits) {
    EXPECT_EQ(Coordinates::pointText(5, 11), "05, 11");
    EXPECT_EQ(Coordinates::pointText(47, 9), "47, 09");
    EXPECT_EQ(Coordinates::sizeText(3, 4), "03 x 04");
    EXPECT_EQ(Coordinates::twoDigits(123), "123");
    EXPECT_EQ(Coordinates::twoDigits(-5), "-05");
}

} // namespace
