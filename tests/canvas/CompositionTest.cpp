#include "canvas/Canvas.h"

#include "CanvasExpectations.h"
#include "document/IconDocument.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

namespace {

using namespace CanvasExpectations;

enum class Kind { Opaque, Transparent, Inverting };

struct Sample {
    int x, y;
    Kind kind;
    Colour colour;
};

// One of each kind of pixel, with colours that catch a mixed-up operation:
// black and white among the opaque ones, white and a one-bit colour among the
// inverting ones.
std::vector<Sample> samplesFor(int n) {
    return {
        {0, 0, Kind::Opaque, 0x0000FF},         {1, 0, Kind::Opaque, kBlack},
        {2, 0, Kind::Opaque, kWhite},           {3, 0, Kind::Transparent, kBlack},
        {4, 0, Kind::Inverting, 0x00FF00},      {5, 0, Kind::Inverting, kWhite},
        {6, 0, Kind::Inverting, 0x000001},      {0, 1, Kind::Opaque, 0x808080},
        {n - 1, n - 1, Kind::Opaque, 0xFF0000}, {n - 1, 0, Kind::Inverting, 0x0A0B0C},
    };
}

void put(IconDocument& doc, const Sample& s) {
    doc.PicMask.setPixel(s.x, s.y, s.kind == Kind::Opaque ? kBlack : kWhite);
    doc.PicImage.setPixel(s.x, s.y, s.colour);
}

// The back buffer at (x, y) for a pixel of the given kind.
Colour canvasColour(Kind kind, Colour c, int x, int y, int zoom) {
    switch (kind) {
    case Kind::Opaque:
        return c;
    case Kind::Transparent:
        return background(x, y, zoom);
    case Kind::Inverting:
        return background(x, y, zoom) ^ c;
    }
    return 0;
}

Colour previewColour(Kind kind, Colour c) {
    switch (kind) {
    case Kind::Opaque:
        return c;
    case Kind::Transparent:
        return kButtonFace;
    case Kind::Inverting:
        return kButtonFace ^ c;
    }
    return 0;
}

TEST(CompositionTest, EveryKindOfPixelLooksAsItShouldOnCanvasAndPreview) {
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        IconDocument doc;
        doc.resize(sizeIndex);
        const int n = doc.size, zoom = doc.zoom;
        SCOPED_TRACE(n);
        std::map<std::pair<int, int>, Sample> byPixel;
        for (const Sample& s : samplesFor(n)) {
            put(doc, s);
            byPixel[{s.x, s.y}] = s;
        }
        Canvas canvas;
        canvas.placePreview(n);
        canvas.compose(doc);

        for (int y = 0; y < 385; ++y)
            for (int x = 0; x < 385; ++x) {
                const auto found = byPixel.find({x / zoom, y / zoom});
                // Every other pixel of the new document is transparent.
                const Sample s = found != byPixel.end() ? found->second
                                                        : Sample{0, 0, Kind::Transparent, kBlack};
                const Colour back =
                    x < 384 && y < 384 ? canvasColour(s.kind, s.colour, x, y, zoom) : kWhite;
                if (x < 384 && y < 384) {
                    ASSERT_EQ(canvas.PicMainCopy.pixel(x, y), back) << x << "," << y;
                }
                ASSERT_EQ(canvas.PicMain.pixel(x, y), withGrid(x, y, zoom, back)) << x << "," << y;
            }
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x) {
                const auto found = byPixel.find({x, y});
                const Colour expected =
                    found == byPixel.end()
                        ? kButtonFace
                        : previewColour(found->second.kind, found->second.colour);
                ASSERT_EQ(canvas.PicIcon.pixel(x, y), expected) << x << "," << y;
            }
    }
}

TEST(CompositionTest, AnInvertingPixelNeverLooksTransparent) {
    for (int sizeIndex = 0; sizeIndex < 3; ++sizeIndex) {
        for (const Colour c : {Colour{0x000001}, Colour{0x800000}, kWhite, kButtonFace}) {
            SCOPED_TRACE(testing::Message() << sizeIndex << " colour " << std::hex << c);
            IconDocument doc;
            doc.resize(sizeIndex);
            put(doc, {1, 1, Kind::Inverting, c});
            Canvas canvas;
            canvas.placePreview(doc.size);
            canvas.compose(doc);
            const int z = doc.zoom;
            // Cell (1, 1) against its transparent neighbour (2, 1), pixel by
            // pixel inside the grid lines.
            for (int oy = 1; oy < z; ++oy)
                for (int ox = 1; ox < z; ++ox)
                    ASSERT_NE(canvas.PicMain.pixel(z + ox, z + oy),
                              canvas.PicMain.pixel(2 * z + ox, z + oy))
                        << ox << "," << oy;
            EXPECT_NE(canvas.PicIcon.pixel(1, 1), canvas.PicIcon.pixel(2, 1));
        }
    }
}

TEST(CompositionTest, OnlyTheRefreshAfterAnEditMarksTheDocumentModified) {
    IconDocument doc;
    Canvas canvas;
    canvas.compose(doc);
    EXPECT_FALSE(doc.modified);
    canvas.refreshFromPlanes(doc);
    EXPECT_TRUE(doc.modified);
}

} // namespace
