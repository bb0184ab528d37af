#include "tools/DrawingColour.h"

#include "tools/ButtonColours.h"

DrawingColour DrawingColour::of(std::int32_t buttonValue, bool erase, Colour buttonFace) {
    if (buttonValue == kTransparentColour || erase)
        return {true, kWhite, buttonFace, kWhite, kBlack};
    const auto c = static_cast<Colour>(buttonValue);
    return {false, c, c, kBlack, c};
}
