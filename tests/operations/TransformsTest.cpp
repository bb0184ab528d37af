#include "operations/Buttonize.h"
#include "operations/ColourTransforms.h"
#include "operations/ImageTransforms.h"
#include "support/AsciiArt.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace ImageTransforms;
using AsciiArt::text;

TEST(TransformsTest, EachImageOperationMapsEveryPixelAndHalvesOddExtentsByTruncation) {
    AsciiArt::Palette letters; // fifteen letters, fifteen colours
    for (char c = 'a'; c <= 'o'; ++c)
        letters[c] = rgb(c, 255 - c, 3 * c);
    const std::pair<std::function<Plane(Plane)>, std::string> cases[] = {
        {[](Plane p) { return flipHorizontal(p), p; }, text({"edcba", "jihgf", "onmlk"})},
        {[](Plane p) { return flipVertical(p), p; }, text({"klmno", "fghij", "abcde"})},
        {rotatedClockwise, text({"kfa", "lgb", "mhc", "nid", "oje"})},
        {rotatedAnticlockwise, text({"ejo", "din", "chm", "bgl", "afk"})},
        {[](Plane p) { return reflectLeftInRight(p), p; }, text({"abbae", "fggfj", "kllko"})},
        {[](Plane p) { return reflectRightInLeft(p), p; }, text({"edcde", "jihij", "onmno"})},
        {[](Plane p) { return reflectTopInBottom(p), p; }, text({"abcde", "abcde", "klmno"})},
        {[](Plane p) { return reflectBottomInTop(p), p; }, text({"klmno", "fghij", "klmno"})},
    };
    const Plane start = AsciiArt::toPlane({"abcde", "fghij", "klmno"}, letters);
    for (const auto& [operation, expected] : cases)
        EXPECT_EQ(AsciiArt::fromPlane(operation(start), letters), expected);
}

TEST(TransformsTest, InvertAndGreyChangeOnlyOpaquePixelsAndGreyRoundsHalvesToEven) {
    // A colour, its inverse, its grey (the exact grey in the comment).
    const Colour cases[][3] = {
        {0x0000FF, 0xFFFF00, 0x393939}, // 56.61
        {0x00FF00, 0xFF00FF, 0xB4B4B4}, // 180.285
        {0xFF0000, 0x00FFFF, 0x121212}, // 18.105
        {kWhite, kBlack, kWhite},
        {rgb(0, 18, 194), rgb(255, 237, 61), 0x1A1A1A}, // 26.5
        {rgb(0, 16, 228), rgb(255, 239, 27), 0x1C1C1C}, // 27.5
    };
    for (const auto& [colour, inverse, grey] : cases) {
        // Opaque on the left, inverting (under a white mask) on the right.
        Plane image(2, 1, colour), mask(2, 1, kBlack), inverted = image, greyed = image;
        mask.setPixel(1, 0, kWhite);
        ColourTransforms::invert(inverted, mask);
        ColourTransforms::greyscale(greyed, mask);
        EXPECT_EQ(std::vector({inverted.pixel(0, 0), greyed.pixel(0, 0), inverted.pixel(1, 0),
                               greyed.pixel(1, 0)}),
                  std::vector({inverse, grey, colour, colour}));
    }
}

TEST(TransformsTest, ButtonizeLightensTopAndLeftRingsAndDarkensBottomAndRight) {
    // Size, the greys from the top-left corner inward, from the bottom-right.
    const std::tuple<int, std::vector<int>, std::vector<int>> cases[] = {
        {16, {220, 160, 100}, {0, 40, 100}},
        {32, {220, 160, 130, 100}, {0, 40, 70, 100}},
        {48, {180, 140, 120, 110, 100}, {20, 60, 80, 90, 100}},
    };
    for (const auto& [n, light, dark] : cases) {
        Plane image(n, n, rgb(100, 100, 100)), mask(n, n, kBlack);
        image.setPixel(5, 0, kWhite); // cannot get lighter
        image.setPixel(7, 0, 0x0000FF);
        mask.setPixel(7, 0, kWhite); // not opaque: left alone
        Buttonize::apply(image, mask);
        std::vector<Colour> seen, expected;
        for (int d = 0; d < static_cast<int>(light.size()); ++d) {
            seen.insert(seen.end(), {image.pixel(d, d), image.pixel(n - 1 - d, n - 1 - d)});
            expected.insert(expected.end(),
                            {rgb(light[d], light[d], light[d]), rgb(dark[d], dark[d], dark[d])});
        }
        EXPECT_EQ(seen, expected);
        // The corners go with the top and bottom rows; the sides between them.
        EXPECT_EQ(std::vector({image.pixel(n - 1, 0), image.pixel(0, 9), image.pixel(0, n - 1),
                               image.pixel(n - 1, 9), image.pixel(5, 0), image.pixel(7, 0)}),
                  std::vector({image.pixel(0, 0), image.pixel(0, 0), image.pixel(n - 1, n - 1),
                               image.pixel(n - 1, n - 1), kWhite, Colour(0x0000FF)}));
    }
}

} // namespace
