#include "operations/Operations.h"
#include "operations/Buttonize.h"
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
        {[](Operations& o) { o.fxAction(FxAction::Buttonize); }, Buttonize::apply},
    };
    for (const auto& [command, onPlanes] : cases) {
        startWithSize(0);
        draw("rg/bT/ik", 'g');
        editor->recordEdit();
        EXPECT_EQ(reflectionsOffered(), "1111");
        Plane image = doc().PicImage, mask = doc().PicMask;
        onPlanes(image, mask);
        command(operations());
        EXPECT_EQ(std::pair(doc().PicImage, doc().PicMask), std::pair(image, mask));
        EXPECT_EQ(undoSize(), 3u);
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
        startWithSize(1);
        draw("rT", 'g');
        editor->recordEdit();
        if (floating) {
            clipboard.picture = Plane(2, 1, kWhite); // pasted as "rT"
            clipboard.picture.setPixel(0, 0, kRed);
            editor->editAction(Paste);
        } else {
            mark(at(0), at(0), at(2), at(1));
        }
        command(operations());
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
        expectViews(true, true);
    }
}

TEST_F(OperationsTest, ButtonizeCommitsASelectionFirst) {
    paint(0, 0, kRed);
    recordPainting();
    editor->editAction(SelectAll);
    operations().fxAction(FxAction::Buttonize);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(pixelAt(0, 0), std::pair(rgb(255, 120, 120), kBlack));
}

} // namespace
