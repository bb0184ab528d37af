#pragma once

#include "operations/TextPlanes.h"
#include "platform/Plane.h"

#include <optional>

class ColourAdjustment;

// The questions only the image and colour operations and the effects ask.
class OperationDialogs {
  public:
    virtual ~OperationDialogs() = default;

    // "Color Adjustment": the user's spinner changes, Reset included, go to
    // adjustment, whose preview the dialog shows at actual size. True when the
    // dialog closed with Ok.
    virtual bool adjustColours(ColourAdjustment& adjustment) = 0;
    // "Gradient": the linear or spherical gradient the user designed for an
    // icon size x size, as a picture of that size; nothing on Cancel.
    virtual std::optional<Plane> chooseGradient(int size) = 0;

    // "Text": the line the user typed, rendered at size x size as it is
    // typed. Nothing when the dialog was cancelled or Ok found blank text.
    virtual std::optional<TextPlanes> addText(int size) = 0;
    // The frozen screen with an outline of outer size iconSize + 2 following
    // the pointer: the square a left click took (ScreenCapture::squareAt),
    // nothing when the window was left in another way.
    virtual std::optional<Plane> captureScreen(int iconSize) = 0;
};
