#include "widgets/WindowPlacement.h"

#include <gtest/gtest.h>

namespace {

TEST(WindowPlacement, CentredAcrossAndAThirdDown) {
    const QSize window(582, 460);
    EXPECT_EQ(WindowPlacement::topLeft({800, 600}, window), QPoint(109, 46));
    EXPECT_EQ(WindowPlacement::topLeft({400, 300}, window), QPoint(-91, -53));
}

} // namespace
