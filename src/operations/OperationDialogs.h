#pragma once

class ColourAdjustment;

// The question only the image and colour operations ask.
class OperationDialogs {
  public:
    virtual ~OperationDialogs() = default;

    // "Color Adjustment": the user's spinner changes, Reset included, go to
    // adjustment, whose preview the dialog shows at actual size. True when the
    // dialog closed with Ok.
    virtual bool adjustColours(ColourAdjustment& adjustment) = 0;
};
