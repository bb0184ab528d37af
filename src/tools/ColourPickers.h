#pragma once

#include "platform/Plane.h"

#include <cstdint>

struct ButtonColours;

// The four pickers that set the mouse-button colours: the colour chart
// PicPal, the grey ramp PicGreyPal, the sixteen-colour PicMiniPal and the
// "Transparent" swatch PicScreen. Built once; the shell shows the planes
// (PicScreen shows swatch(kTransparentColour)), confines the pointer to the
// picker while a button is down and forwards the mouse here, in the picker's
// own pixels.
class ColourPickers {
  public:
    enum Picker { Chart, GreyRamp, MiniPalette, Transparent };

    // The inside of the swatches PicLeft and PicRight.
    static constexpr int kSwatchWidth = 23;
    static constexpr int kSwatchHeight = 12;
    // The mini palette's cells.
    static constexpr int kCellWidth = 24;
    static constexpr int kCellHeight = 13;

    ColourPickers();

    // Button 1 (left) or 2 (right) pressed on a picker, and the drag that
    // follows: the button's colour follows the picker pixel under the
    // pointer. Points outside the picker count as its nearest edge; other
    // buttons change nothing.
    void mouseDown(Picker picker, int button, int x, int y, ButtonColours& colours);
    void mouseMove(Picker picker, int button, int x, int y, ButtonColours& colours);

    // The sixteen standard colours of the mini palette, 0..15 in row order.
    static Colour standardColour(int number);

    // What a mouse-button swatch shows for a button colour: a plane filled
    // with the colour, or, for "Transparent", white with the top-left
    // 23 x 12 of the transparent-cell pattern.
    static Plane swatch(std::int32_t buttonValue, int width = kSwatchWidth,
                        int height = kSwatchHeight);

    Plane PicPal;     // 51 x 335
    Plane PicGreyPal; // 92 x 32
    Plane PicMiniPal; // 96 x 52
};
