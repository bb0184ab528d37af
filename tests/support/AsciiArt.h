#pragma once

#include "platform/Plane.h"

#include <cstring>
#include <initializer_list>
#include <map>
#include <string>

// Pictures written as text in a test, one character a pixel, so a reader sees
// the expected shape. Compared as text, a failure prints both pictures.
namespace AsciiArt {

using Palette = std::map<char, Colour>;

// '#' black on '.' white: the figures of the drawing primitives.
inline const Palette& inkOnPaper() {
    static const Palette palette{{'#', kBlack}, {'.', kWhite}};
    return palette;
}

inline Plane toPlane(std::initializer_list<const char*> rows, const Palette& palette) {
    const int width = rows.size() == 0 ? 0 : static_cast<int>(std::strlen(*rows.begin()));
    Plane plane(width, static_cast<int>(rows.size()));
    for (int y = 0; y < plane.height(); ++y)
        for (int x = 0; x < width; ++x)
            plane.setPixel(x, y, palette.at(rows.begin()[y][x]));
    return plane;
}

// The plane as rows of text; a colour missing from the palette shows as '?'.
inline std::string fromPlane(const Plane& plane, const Palette& palette) {
    std::string text;
    for (int y = 0; y < plane.height(); ++y) {
        text += '\n';
        for (int x = 0; x < plane.width(); ++x) {
            char shown = '?';
            for (const auto& [symbol, colour] : palette)
                if (plane.pixel(x, y) == colour)
                    shown = symbol;
            text += shown;
        }
    }
    return text;
}

// The rows as fromPlane prints them.
inline std::string text(std::initializer_list<const char*> rows) {
    std::string joined;
    for (const char* row : rows)
        joined += std::string("\n") + row;
    return joined;
}

} // namespace AsciiArt
