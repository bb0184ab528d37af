#include "operations/Operations.h"
#include "operations/Buttonize.h"
#include "operations/ColourAdjustment.h"
#include "operations/ColourTransforms.h"
#include "operations/ImageTransforms.h"
#include "tools/ToolsFixture.h"

#include <functional>

namespace {

using enum ImageAction;
using Command = std::function<void(Operations&)>;

template <void (*F)(Plane&)> void both(Plane& image, Plane& mask) {
    F(image);
    F(mask);
}
template <Plane (*F)(const Plane&)> void bothTurned(Plane& image, Plane& mask) {
    image = F(image);
    mask = F(mask);
}
Command onImage(ImageAction item) {
    return [item](Operations& o) { o.imageAction(item); };
}
Command onColour(ColorAction item) {
    return [item](Operations& o) { o.colorAction(item); };
}

class OperationsTest : public ToolsFixture {
  protected:
    Operations& operations() { return editor->operations(); }
    // The reflections as the Image menu offers them, '1' or '0' each.
    std::string reflectionsOffered() {
        std::string offered;
        for (ImageAction item :
             {ReflectLeftInRight, ReflectRightInLeft, ReflectTopInBottom, ReflectBottomInTop})
            offered += operations().imageActionEnabled(item) ? '1' : '0';
        return offered;
    }
};

TEST_F(OperationsTest, OnTheWholeIconEachCommandChangesBothPlanesAndRecordsOnce) {
    using namespace ImageTransforms;
    const std::pair<Command, std::function<void(Plane&, Plane&)>> cases[] = {
        {onImage(FlipHorizontal), both<flipHorizontal>},
        {onImage(FlipVertical), both<flipVertical>},
        {onImage(RotateLeft), bothTurned<rotatedAnticlockwise>},
        {onImage(RotateRight), bothTurned<rotatedClockwise>},
        {onImage(ReflectLeftInRight), both<reflectLeftInRight>},
        {onImage(ReflectRightInLeft), both<reflectRightInLeft>},
        {onImage(ReflectTopInBottom), both<reflectTopInBottom>},
        {onImage(ReflectBottomInTop), both<reflectBottomInTop>},
        {onColour(ColorAction::Invert), ColourTransforms::invert},
        {onColour(ColorAction::Greyscale), ColourTransforms::greyscale},
        // Buttonize commits a selection first and works on the whole icon.
        {[this](Operations& o) {
             mark(at(0), at(0), at(1), at(1));
             o.fxAction(FxAction::Buttonize);
         },
         Buttonize::apply},
    };
    for (const auto& [command, onPlanes] : cases) {
        startWith(0, "rg/bT/ik", 'g');
        EXPECT_EQ(reflectionsOffered(), "1111");
        Plane image = doc().PicImage, mask = doc().PicMask;
        onPlanes(image, mask);
        command(operations());
        EXPECT_EQ(std::pair(doc().PicImage, doc().PicMask), std::pair(image, mask));
        EXPECT_EQ(std::pair(sel().exists(), undoSize()), std::pair(false, 3ul));
        expectViews();
    }
}

TEST_F(OperationsTest, ASelectionChangesAloneUnrecordedAndTurnsClockwiseAfloat) {
    // Floating (else marked), the command, the selection's colour then mask
    // pixels, its size, the reflections then offered.
    const std::tuple<bool, Command, std::vector<Colour>, int, int, const char*> cases[] = {
        {false, onImage(FlipHorizontal), {kBlack, kRed, kWhite, kBlack}, 2, 1, "1100"},
        {true, onImage(FlipHorizontal), {kBlack, kRed, kWhite, kBlack}, 2, 1, "1100"},
        {false, onColour(ColorAction::Invert), {0xFFFF00, kBlack, kBlack, kWhite}, 2, 1, "1100"},
        {true, onColour(ColorAction::Greyscale), {0x393939, kBlack, kBlack, kWhite}, 2, 1, "1100"},
        {false, onImage(RotateLeft), {kRed, kBlack, kBlack, kWhite}, 1, 2, "0011"},
        {true, onImage(RotateLeft), {kRed, kBlack, kBlack, kWhite}, 1, 2, "0011"},
        {false, onImage(RotateRight), {kRed, kBlack, kBlack, kWhite}, 1, 2, "0011"},
    };
    for (const auto& [floating, command, planes, w, h, offered] : cases) {
        startWith(1, "rT", 'g');
        if (floating) {
            clipboard.picture = Plane(2, 1, kWhite); // pasted as "rT"
            clipboard.picture.setPixel(0, 0, kRed);
            editor->editAction(Paste);
        } else {
            mark(at(0), at(0), at(2), at(1));
        }
        editor->doc().modified = false;
        command(operations());
        EXPECT_TRUE(doc().modified);
        std::vector<Colour> selection = doc().PicSelImage.pixels();
        selection.insert(selection.end(), doc().PicSelMask.pixels().begin(),
                         doc().PicSelMask.pixels().end());
        EXPECT_EQ(selection, planes);
        EXPECT_EQ(std::vector({rect().Left, rect().Top, rect().Right, rect().Bottom}),
                  std::vector({0, 0, 12 * w, 12 * h}));
        EXPECT_EQ(reflectionsOffered(), offered);
        // Only a rotation lifts a marked area, which leaves it cleared.
        const bool lifted = w == 1;
        EXPECT_EQ(std::pair(sel().SelFloating, sel().SelMarked),
                  std::pair(floating || lifted, !floating && !lifted));
        expectPicture(!floating && lifted ? "TT" : "rT", 0, 0, 'g');
        EXPECT_EQ(undoSize(), 2u);
        expectRedrawnSelection();
        // Committed, the changed selection, a marked one too, records a state.
        editor->editAction(Deselect);
        EXPECT_EQ(undoSize(), 3u);
    }
}

TEST_F(OperationsTest, AdjustColoursFreezesAChannelOutOfRangeAndOnlyOkWritesTheIcon) {
    constexpr auto B = ColourAdjustment::Brightness, R = ColourAdjustment::Red,
                   G = ColourAdjustment::Green;
    constexpr int kReset = 1000; // a step that presses Reset
    // The spinner changes, Ok, and what the opaque pixel (250, 100, 0) shows
    // after each change.
    const std::tuple<std::vector<std::pair<ColourAdjustment::Spinner, int>>, bool,
                     std::vector<Colour>>
        cases[] = {
            // Red stops at 255 and comes down only when its count of 260 does.
            // Blue stays at 0 while its count is below.
            {{{B, 5}, {B, 10}, {B, 5}, {B, 0}, {R, -5}, {B, -5}, {B, 0}},
             true,
             {rgb(255, 105, 5), rgb(255, 110, 10), rgb(255, 105, 5), rgb(250, 100, 0),
              rgb(245, 100, 0), rgb(240, 95, 0), rgb(245, 100, 0)}},
            // One step a change, none when the value is the last one seen.
            {{{G, 100}, {G, 100}}, true, {rgb(250, 105, 0), rgb(250, 105, 0)}},
            {{{B, 5}, {G, 5}, {B, kReset}, {G, 5}},
             true,
             {rgb(255, 105, 5), rgb(255, 110, 5), rgb(250, 100, 0), rgb(250, 105, 0)}},
            {{{ColourAdjustment::Blue, 5}}, false, {rgb(250, 100, 5)}},
        };
    for (const auto& [steps, ok, expected] : cases) {
        startWithSize(0);
        draw("ki", 'T');
        paint(0, 0, rgb(250, 100, 0));
        editor->recordEdit();
        // After Reset the inverting pixel shows as the preview's background.
        Plane reset = doc().PicImage;
        reset.setPixel(1, 0, kBlack);
        mark(at(3), at(3), at(5), at(5)); // committed first, unrecorded
        Plane image = doc().PicImage;
        const Plane mask = doc().PicMask;
        std::vector<Colour> shown;
        dialogs.colourAdjustments.push_back([&](ColourAdjustment& adjustment) {
            for (const auto& [spinner, value] : steps) {
                if (value == kReset) {
                    adjustment.reset();
                    EXPECT_EQ(std::pair(adjustment.shadeImage(), adjustment.shadeMask()),
                              std::pair(reset, mask));
                } else {
                    adjustment.spin(spinner, value);
                }
                shown.push_back(adjustment.shadeImage().pixel(0, 0));
            }
            return ok;
        });
        operations().colorAction(ColorAction::AdjustColors);
        EXPECT_EQ(shown, expected);
        if (ok)
            image.setPixel(0, 0, expected.back());
        EXPECT_EQ(std::pair(doc().PicImage, doc().PicMask), std::pair(image, mask));
        EXPECT_FALSE(sel().exists());
        EXPECT_EQ(undoSize(), ok ? 3u : 2u);
        expectViews();
    }
}

} // namespace
