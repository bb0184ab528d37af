#pragma once

#include "platform/Plane.h"

struct ButtonColours;

// The four pickers that set the mouse-button colours: the colour chart
// PicPal, the grey ramp PicGreyPal, the sixteen-colour PicMiniPal and the
// "Transparent" swatch PicScreen. Built once; the shell shows the planes and
// forwards the mouse (coordinates in the picker's own pixels).
class ColourPickers {
public:
    enum Picker { Chart, GreyRamp, MiniPalette, Transparent };

    ColourPickers();

    void mouseDown(Picker picker, int button, int x, int y, ButtonColours& colours);
    void mouseMove(Picker picker, int button, int x, int y, ButtonColours& colours);

    Plane PicPal;     // 51 x 335
    Plane PicGreyPal; // 92 x 32
    Plane PicMiniPal; // 96 x 52
};
