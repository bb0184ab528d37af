#include "operations/TextPlanes.h"

std::optional<TextPlanes> TextPlanes::accepted(const QString& text, TextPlanes rendered) {
    if (isBlank(text))
        return std::nullopt;
    hardenMask(rendered.mask);
    return rendered;
}

void TextPlanes::hardenMask(Plane& mask) {
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            const Colour c = mask.pixel(x, y);
            if (c >= 1 && c < kWhite)
                mask.setPixel(x, y, kBlack);
        }
}

bool TextPlanes::isBlank(const QString& text) {
    // Only spaces count as blanks: a tab or any other character is text.
    for (const QChar c : text)
        if (c != QLatin1Char(' '))
            return false;
    return true;
}
