#pragma once

#include "platform/Colour.h"

// How a figure reaches the plane: painted in the pen's colour, or inverting
// what is there (the rubber-band mode; drawing a figure twice removes it).
enum class PenMode { Copy, Invert };

struct Pen {
    Colour colour = kBlack;
    int width = 1;
    PenMode mode = PenMode::Copy;
};
