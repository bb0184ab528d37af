#pragma once

#include "platform/Plane.h"

#include <optional>

class ColourAdjustment;

// The question only the image and colour operations ask.
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
};
