#include "operations/GradientFill.h"
#include "operations/Operations.h"
#include "tools/ToolsFixture.h"

#include <tuple>

namespace {

using namespace GradientFill;

// From black to white every channel steps by exactly 1, so the grey of a
// pixel is its ramp index.
const Ramp kGrey(kBlack, kWhite);
Colour grey(int index) {
    return rgb(index, index, index);
}

TEST(GradientFill, TheRampStepsEachChannelTowardsTheEndColour) {
    // Start, end, index, colour; the linear bands below step through the
    // whole black-to-white ramp.
    const std::tuple<Colour, Colour, int, Colour> cases[] = {
        {kWhite, kBlack, 1, grey(254)},
        // Red rises by 190/255, green falls by 100/255, blue stays.
        {rgb(10, 200, 7), rgb(200, 100, 7), 128, rgb(105, 150, 7)},
        {rgb(10, 200, 7), rgb(200, 100, 7), 255, rgb(200, 100, 7)},
        {rgb(9, 9, 9), rgb(9, 9, 9), 200, rgb(9, 9, 9)},
    };
    for (const auto& [start, end, index, colour] : cases)
        EXPECT_EQ(hex(Ramp(start, end).at(index)), hex(colour)) << index;
}

TEST(GradientFill, LinearBandsRunFromTheStartSideTheAngleNames) {
    // Size, angle, pixel, ramp index there. Straight rows and columns spread
    // the bands 0 to 254 evenly; a diagonal pixel on x + y = m takes the band
    // of m + 1 of 96.
    const std::tuple<int, int, int, int, int> cases[] = {
        {16, 0, 0, 9, 0},      {16, 0, 15, 3, 254},   {16, 0, 8, 0, 135},   {16, 90, 5, 0, 0},
        {16, 90, 5, 15, 254},  {16, 90, 15, 7, 119},  {16, 180, 0, 4, 255}, {16, 180, 15, 4, 1},
        {16, 270, 4, 0, 255},  {16, 270, 4, 15, 1},   {16, 45, 0, 0, 2},    {16, 45, 15, 15, 82},
        {16, 45, 15, 0, 42},   {16, 45, 0, 15, 42},   {16, 135, 15, 0, 2},  {16, 135, 0, 15, 82},
        {16, 225, 15, 15, 2},  {16, 225, 0, 0, 82},   {16, 315, 0, 15, 2},  {16, 315, 15, 0, 82},
        {32, 45, 31, 31, 167}, {48, 45, 47, 47, 252}, {48, 90, 0, 47, 254},
    };
    for (const auto& [size, angle, x, y, index] : cases) {
        const Plane picture = linear(size, angle, kGrey);
        ASSERT_EQ(picture.width(), size);
        EXPECT_EQ(hex(picture.pixel(x, y)), hex(grey(index)))
            << size << " at " << angle << ": " << x << "," << y;
    }
    EXPECT_EQ(linear(32, 360, kGrey), linear(32, 0, kGrey));
}

TEST(GradientFill, SphericalCirclesReachTheFarthestCornerAndMayStopEarly) {
    // Size, centre, pixel, ramp index there: the last circle within half a
    // pixel of the pixel's distance, the radius being the distance to the
    // farthest corner (S, S) and so on.
    const std::tuple<int, int, int, int, int, int> cases[] = {
        {16, 0, 0, 15, 15, 244}, {16, 0, 0, 15, 0, 174}, {16, 0, 0, 0, 0, 5},
        {16, 8, 8, 0, 0, 255},   {16, 8, 8, 8, 8, 11},   {48, 40, 5, 0, 47, 254},
    };
    for (const auto& [size, cx, cy, x, y, index] : cases)
        EXPECT_EQ(hex(spherical(size, cx, cy, kGrey).pixel(x, y)), hex(grey(index)))
            << "around " << cx << "," << cy << " at " << x << "," << y;

    // Stopped after the second circle, the disc has only its centre.
    int circles = 0;
    const Plane stopped = spherical(16, 3, 4, kGrey, [&](const Plane&) { return ++circles < 2; });
    EXPECT_EQ(std::vector({stopped.pixel(3, 4), stopped.pixel(4, 4)}),
              std::vector({grey(1), kButtonFace}));
}

class GradientCommandTest : public ToolsFixture {};

TEST_F(GradientCommandTest, OkFillsOnlyUnderMaskedPixelsAndRecordsWhileCancelLeavesAll) {
    const Plane gradient = numberedPlane(16, 16);
    using Pixel = std::pair<Colour, Colour>;
    const Pixel green{kGreen, kBlack}, black{kBlack, kBlack}, red{kRed, kBlack};
    // The icon, whether a green pixel floats over (0, 0), Ok, the top row
    // after and the undo states (the pasted pixel's commit records one).
    const std::tuple<const char*, bool, bool, std::vector<Pixel>, std::size_t> cases[] = {
        {"rTi/TTT", true, true, {green, {rgb(1, 0, 7), kWhite}, {rgb(2, 0, 7), kWhite}}, 4},
        {"rTi/TTT", true, false, {red, {kBlack, kWhite}, {kRed, kWhite}}, 2},
        {"rgk/kkk", false, true, {red, green, black}, 3},
    };
    for (const auto& [icon, floating, ok, row, undoStates] : cases) {
        startWith(0, icon, 'k');
        if (floating) {
            clipboard.picture = Plane(1, 1, kGreen);
            editor->editAction(Paste);
        }
        const Plane mask = doc().PicMask;
        dialogs.gradients.push_back(ok ? std::optional(gradient) : std::nullopt);
        editor->operations().colorAction(ColorAction::GradientTransparency);

        EXPECT_EQ(dialogs.gradientSizes.back(), 16);
        EXPECT_EQ(sel().exists(), floating && !ok) << icon;
        EXPECT_EQ(std::vector({pixelAt(0, 0), pixelAt(1, 0), pixelAt(2, 0)}), row) << icon;
        EXPECT_EQ(doc().PicMask, mask) << icon;
        EXPECT_EQ(undoSize(), undoStates) << icon;
        if (ok)
            expectViews();
    }
}

} // namespace
