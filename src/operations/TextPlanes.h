#pragma once

#include "platform/Plane.h"

#include <QString>

#include <optional>

// The text of Effects > Add Text as the "Text" dialog rendered it at the
// icon's size: the colour plane (text colour on black) and the mask (black
// text on white), both drawn with the same font.
struct TextPlanes {
    Plane image;
    Plane mask;

    // What Ok hands to the selection: nothing when the text is blank (empty
    // once its leading and trailing blanks are gone), else the planes with
    // the mask hardened.
    static std::optional<TextPlanes> accepted(const QString& text, TextPlanes rendered);
    // Every mask pixel that is not pure white turns black. The rasteriser's
    // grey edge pixels so become opaque, showing their colour (the text
    // colour blended with black), and only the background stays transparent.
    static void hardenMask(Plane& mask);
    static bool isBlank(const QString& text);
};
