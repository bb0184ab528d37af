#pragma once

#include "platform/Colour.h"

#include <array>
#include <cstdint>

// The colours the two mouse buttons paint with: index 0 left, 1 right.
// kTransparentColour stands for "Transparent", which paints the transparent pair.
constexpr std::int32_t kTransparentColour = -2;

struct ButtonColours {
    std::array<std::int32_t, 2> value{static_cast<std::int32_t>(kBlack),
                                      static_cast<std::int32_t>(kWhite)};

    void reset() { value = {static_cast<std::int32_t>(kBlack), static_cast<std::int32_t>(kWhite)}; }
    bool isTransparent(int index) const { return value[index] == kTransparentColour; }
    Colour colour(int index) const { return static_cast<Colour>(value[index]); }
};
