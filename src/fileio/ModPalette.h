#pragma once

#include "platform/Plane.h"

#include <vector>

// A colour table as written into a file: entry i is written as blue, green,
// red, 0 of the colour value.
using ColourTable = std::vector<Colour>;

// The colour-depth analysis run before every write, and the 8-bit palettes.
class ModPalette {
  public:
    // 2, 16, 256 or -1 (true colour). forIcon is true for .ico and .cur, where
    // black and white always have their own entries (0 and 255).
    static int countColours(const Plane& picture, bool forIcon);

    // Entry 0 black, 255 white, the other colours from 1 up in scan order.
    static ColourTable buildIconPalette(const Plane& picture);
    // Every colour, black and white included, from entry 0 up in scan order.
    static ColourTable buildBitmapPalette(const Plane& picture);

    // The 2- and 16-entry tables of 1- and 4-bit files.
    static ColourTable blackTable(int entries) { return ColourTable(entries, kBlack); }

    // 1, 4, 8 or 24 for a colour count.
    static int bitDepthFor(int colourCount);
};
