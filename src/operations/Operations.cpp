#include "operations/Operations.h"

#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/EditTarget.h"
#include "editing/Selection.h"
#include "operations/Buttonize.h"
#include "operations/ColourAdjustment.h"
#include "operations/ColourTransforms.h"
#include "operations/GradientFill.h"
#include "operations/ImageTransforms.h"
#include "operations/OperationDialogs.h"
#include "operations/ScreenCapture.h"
#include "platform/Services.h"

namespace {

using PlaneChange = void (*)(Plane&);

PlaneChange mirrorFor(ImageAction item) {
    switch (item) {
    case ImageAction::FlipHorizontal:
        return ImageTransforms::flipHorizontal;
    case ImageAction::FlipVertical:
        return ImageTransforms::flipVertical;
    case ImageAction::ReflectLeftInRight:
        return ImageTransforms::reflectLeftInRight;
    case ImageAction::ReflectRightInLeft:
        return ImageTransforms::reflectRightInLeft;
    case ImageAction::ReflectTopInBottom:
        return ImageTransforms::reflectTopInBottom;
    case ImageAction::ReflectBottomInTop:
        return ImageTransforms::reflectBottomInTop;
    case ImageAction::RotateLeft:
    case ImageAction::RotateRight:
        break;
    }
    return nullptr;
}

} // namespace

void Operations::imageAction(ImageAction item) {
    if (item == ImageAction::RotateLeft || item == ImageAction::RotateRight) {
        rotate(item);
        return;
    }
    const PlaneChange mirror = mirrorFor(item);
    if (!mirror)
        return;
    // A flip or reflection keeps the size, so a marked area changes in place.
    const EditTarget target = targetFor(context_, false);
    mirror(target.image);
    mirror(target.mask);
    finishEdit(context_, target);
}

void Operations::rotate(ImageAction item) {
    const EditTarget target = targetFor(context_, true);
    // A selection turns clockwise whichever item was chosen; only the whole
    // icon turns anticlockwise. Kept on purpose: it is how the program is
    // documented to behave, so nobody should "fix" it.
    const bool clockwise = target.kind != EditTarget::Whole || item == ImageAction::RotateRight;
    const auto turn =
        clockwise ? ImageTransforms::rotatedClockwise : ImageTransforms::rotatedAnticlockwise;
    target.image = turn(target.image);
    target.mask = turn(target.mask);
    finishEdit(context_, target);
}

bool Operations::imageActionEnabled(ImageAction item) const {
    const Selection& selection = context_.selection();
    if (!selection.exists())
        return true;
    const IconDocument& doc = context_.doc();
    switch (item) {
    case ImageAction::ReflectLeftInRight:
    case ImageAction::ReflectRightInLeft:
        return doc.PicSelMask.width() % 2 == 0;
    case ImageAction::ReflectTopInBottom:
    case ImageAction::ReflectBottomInTop:
        return doc.PicSelMask.height() % 2 == 0;
    default:
        return true;
    }
}

void Operations::colorAction(ColorAction item) {
    if (item == ColorAction::AdjustColors) {
        adjustColours();
        return;
    }
    if (item == ColorAction::GradientTransparency) {
        gradientTransparency();
        return;
    }
    if (item != ColorAction::Invert && item != ColorAction::Greyscale)
        return;
    const EditTarget target = targetFor(context_, false);
    if (item == ColorAction::Invert)
        ColourTransforms::invert(target.image, target.mask);
    else
        ColourTransforms::greyscale(target.image, target.mask);
    finishEdit(context_, target);
}

void Operations::adjustColours() {
    // The dialog shows and changes the whole icon, never a selection.
    context_.commitSelection();
    IconDocument& doc = context_.doc();
    ColourAdjustment adjustment(doc.PicImage, doc.PicMask);
    if (!dialogs_.adjustColours(adjustment))
        return;
    adjustment.apply(doc.PicImage);
    context_.refresh();
    context_.recordEdit();
}

void Operations::gradientTransparency() {
    // The dialog needs only the icon size, so a Cancel leaves a selection
    // where it is.
    const std::optional<Plane> gradient = dialogs_.chooseGradient(context_.doc().size);
    if (!gradient)
        return;
    // The gradient goes under the whole icon's transparent pixels, never a
    // selection's: commit it, and the target is the whole icon.
    context_.commitSelection();
    const EditTarget target = targetFor(context_, false);
    GradientFill::fillTransparent(target.image, target.mask, *gradient);
    finishEdit(context_, target);
}

void Operations::fxAction(FxAction item) {
    if (item == FxAction::Buttonize)
        buttonize();
    else if (item == FxAction::AddText)
        addText();
    else if (item == FxAction::Capture)
        capture();
}

void Operations::buttonize() {
    context_.commitSelection();
    IconDocument& doc = context_.doc();
    Buttonize::apply(doc.PicImage, doc.PicMask);
    context_.refresh();
    context_.recordEdit();
}

void Operations::addText() {
    context_.commitSelection();
    IconDocument& doc = context_.doc();
    std::optional<TextPlanes> text = dialogs_.addText(doc.size);
    if (!text)
        return;
    doc.PicSelImage = std::move(text->image);
    doc.PicSelMask = std::move(text->mask);
    // The text floats at the top-left corner for the user to drag; its undo
    // record comes when it is committed.
    context_.selection().PlaceFloating();
    doc.modified = true;
}

void Operations::capture() {
    context_.commitSelection();
    // Menus close and the screen is repainted before it is frozen.
    context_.services().letEventsRun();
    IconDocument& doc = context_.doc();
    if (const std::optional<Plane> square = dialogs_.captureScreen(doc.size))
        ScreenCapture::take(*square, doc.PicImage, doc.PicMask);
    // Refreshed and recorded on purpose even when nothing was taken: the
    // command has one ending whatever the window did, and the identical state
    // it then records costs one extra Undo step and nothing else.
    context_.refresh();
    context_.recordEdit();
}
