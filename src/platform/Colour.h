#pragma once

#include <cstdint>

// A colour value as the icon formats and the drawing code use it: red in the
// low byte, then green, then blue (0x00BBGGRR).
using Colour = std::uint32_t;

constexpr Colour kBlack = 0x000000;
constexpr Colour kWhite = 0xFFFFFF;
// What reading a pixel outside a plane gives, as a screen DC answers it.
constexpr Colour kInvalidColour = 0xFFFFFFFF;
// The system button-face colour the preview and swatches are cleared to.
constexpr Colour kButtonFace = 0xF0F0F0;

constexpr Colour rgb(int red, int green, int blue) {
    return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 |
           static_cast<Colour>(blue) << 16;
}
constexpr int redOf(Colour c) {
    return static_cast<int>(c & 0xFF);
}
constexpr int greenOf(Colour c) {
    return static_cast<int>((c >> 8) & 0xFF);
}
constexpr int blueOf(Colour c) {
    return static_cast<int>((c >> 16) & 0xFF);
}
