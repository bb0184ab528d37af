#pragma once

#include "platform/Colour.h"

#include <cstdint>

// What one mouse gesture paints with, target by target. A button colour of
// "Transparent" (and every colour under the Erase tool) writes the
// transparent pair: black into the colour plane, white into the mask.
struct DrawingColour {
    bool transparent = false;
    Colour canvas = kBlack;  // canvas and back buffer; unused when transparent
    Colour preview = kBlack; // the pixel in PicIcon
    Colour mask = kBlack;    // PicMask
    Colour image = kBlack;   // PicImage

    // buttonValue is a ButtonColours value (an RGB colour or -2); a
    // transparent pixel shows buttonFace in the preview.
    static DrawingColour of(std::int32_t buttonValue, bool erase, Colour buttonFace);
};
