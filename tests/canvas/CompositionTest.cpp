#include "canvas/Canvas.h"

#include "document/IconDocument.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace {

// The empty back buffer: a white first and last row and column in each cell,
// the hatch in between: a black top row, then a diagonal every fourth pixel
// rising to the right.
Colour background(int x, int y, int zoom) {
    const int ox = x % zoom, oy = y % zoom;
    if (ox == 0 || oy == 0 || ox == zoom - 1 || oy == zoom - 1)
        return kWhite;
    return oy == 1 || (ox + oy) % 4 == 2 ? kBlack : kWhite;
}

// PicMain over back buffer pixel b: the dotted grid on the first row and
// column of every cell, black at even coordinates and light grey between.
Colour withGrid(int x, int y, int zoom, Colour b) {
    const Colour grey = rgb(192, 192, 192);
    if (y % zoom == 0)
        return x % 2 == 0 ? kBlack : grey;
    if (x % zoom == 0)
        return y % 2 == 0 ? kBlack : grey;
    return b;
}

enum class Kind { Opaque, Transparent, Inverting };

struct Sample {
    Kind kind;
    Colour colour;
};

Colour look(const Sample& s, Colour under) {
    if (s.kind == Kind::Opaque)
        return s.colour;
    return s.kind == Kind::Transparent ? under : under ^ s.colour;
}

TEST(CompositionTest, EveryKindOfPixelLooksAsItShouldOnCanvasAndPreview) {
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        IconDocument doc;
        doc.resize(sizeIndex);
        const int n = doc.size, zoom = doc.zoom;
        SCOPED_TRACE(n);
        // Black and white among the opaque pixels, white and a one-bit colour
        // among the inverting ones: a mixed-up operation shows.
        std::map<std::pair<int, int>, Sample> samples{
            {{0, 0}, {Kind::Opaque, 0x0000FF}},         {{1, 0}, {Kind::Opaque, kBlack}},
            {{2, 0}, {Kind::Opaque, kWhite}},           {{3, 0}, {Kind::Transparent, kBlack}},
            {{4, 0}, {Kind::Inverting, 0x00FF00}},      {{5, 0}, {Kind::Inverting, kWhite}},
            {{6, 0}, {Kind::Inverting, 0x000001}},      {{0, 1}, {Kind::Opaque, 0x808080}},
            {{n - 1, n - 1}, {Kind::Opaque, 0xFF0000}}, {{n - 1, 0}, {Kind::Inverting, 0x0A0B0C}}};
        for (const auto& [at, s] : samples) {
            doc.PicMask.setPixel(at.first, at.second, s.kind == Kind::Opaque ? kBlack : kWhite);
            doc.PicImage.setPixel(at.first, at.second, s.colour);
        }
        const auto sampleAt = [&](int x, int y) {
            const auto found = samples.find({x, y});
            return found == samples.end() ? Sample{Kind::Transparent, kBlack} : found->second;
        };
        Canvas canvas;
        canvas.placePreview(n);
        canvas.compose(doc);

        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const bool inside = x < 384 && y < 384;
                const Colour back =
                    look(sampleAt(x / zoom, y / zoom), inside ? background(x, y, zoom) : kWhite);
                ASSERT_EQ(canvas.PicMainCopy.pixel(x, y), inside ? back : kInvalidColour);
                ASSERT_EQ(canvas.PicMain.pixel(x, y), withGrid(x, y, zoom, back)) << x << "," << y;
            }
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                ASSERT_EQ(canvas.PicIcon.pixel(x, y), look(sampleAt(x, y), kButtonFace))
                    << x << "," << y;
    }
}

} // namespace
