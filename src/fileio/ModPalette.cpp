#include "fileio/ModPalette.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace {

// The colours a 4-bit file could hold.
constexpr std::array<Colour, 16> kSixteen = {
    0x000000, 0x000080, 0x0000FF, 0x008000, 0x008080, 0x00FF00, 0x00FFFF, 0x800000,
    0x800080, 0x808000, 0x808080, 0xC0C0C0, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

template <typename Pred> bool every(const Plane& picture, Pred pred) {
    return std::all_of(picture.pixels().begin(), picture.pixels().end(), pred);
}

// Counts distinct colours in scan order (top row first), skipping black and
// white when asked; false as soon as there are more than `room`.
bool fitsIn(const Plane& picture, std::size_t room, bool skipBlackAndWhite) {
    std::unordered_set<Colour> seen;
    seen.reserve(room * 2);
    for (const Colour c : picture.pixels()) {
        if (skipBlackAndWhite && (c == kBlack || c == kWhite))
            continue;
        if (seen.insert(c).second && seen.size() > room)
            return false;
    }
    return true;
}

// Gives each colour of the picture not yet seen the next entry from first to
// last, in scan order (top row first, left to right), until the entries run out.
void placeNewColours(const Plane& picture, ColourTable& table, std::unordered_set<Colour> seen,
                     int first, int last) {
    int next = first;
    for (const Colour c : picture.pixels()) {
        if (next > last)
            break;
        if (seen.insert(c).second)
            table[next++] = c;
    }
}

} // namespace

int ModPalette::countColours(const Plane& picture, bool forIcon) {
    if (every(picture, [](Colour c) { return c == kBlack || c == kWhite; }))
        return 2;
    if (every(picture, [](Colour c) {
            return std::find(kSixteen.begin(), kSixteen.end(), c) != kSixteen.end();
        }))
        return 16;
    // An icon's table always keeps entry 0 for black and 255 for white.
    const bool fits = forIcon ? fitsIn(picture, 254, true) : fitsIn(picture, 256, false);
    return fits ? 256 : -1;
}

ColourTable ModPalette::buildIconPalette(const Plane& picture) {
    ColourTable table(256, kBlack);
    table[255] = kWhite;
    placeNewColours(picture, table, {kBlack, kWhite}, 1, 254);
    return table;
}

ColourTable ModPalette::buildBitmapPalette(const Plane& picture) {
    // Black and white get no reserved entries here, although the 8-bit
    // encoder still sends them to 0 and 255: an 8-bit bitmap's black pixels
    // take the first colour seen. That is how 8-bit bitmaps come out, on
    // purpose, and is kept.
    ColourTable table(256, kBlack);
    placeNewColours(picture, table, {}, 0, 255);
    return table;
}

int ModPalette::bitDepthFor(int colourCount) {
    switch (colourCount) {
    case 2:
        return 1;
    case 16:
        return 4;
    case 256:
        return 8;
    default:
        return 24;
    }
}
