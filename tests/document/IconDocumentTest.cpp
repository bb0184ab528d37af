#include "document/IconDocument.h"

#include "support/AsciiArt.h"

#include <gtest/gtest.h>

namespace {

// '#' opaque black, 'r' opaque red, 'i' inverting red, '.' transparent.
std::string picture(const IconDocument& doc, int width, int height) {
    std::string text;
    for (int y = 0; y < height; ++y) {
        text += '\n';
        for (int x = 0; x < width; ++x) {
            const Colour mask = doc.PicMask.pixel(x, y), colour = doc.PicImage.pixel(x, y);
            if (mask == kBlack)
                text += colour == kBlack ? '#' : (colour == 0x0000FF ? 'r' : '?');
            else if (mask == kWhite)
                text += colour == kBlack ? '.' : (colour == 0x0000FF ? 'i' : '?');
            else
                text += '?';
        }
    }
    return text;
}

TEST(IconDocumentTest, ClearingARectangleMakesExactlyItsPixelsTransparent) {
    IconDocument doc;
    doc.resize(0);
    doc.PicMask.fill(kBlack);
    doc.PicImage.fill(0x0000FF);
    doc.PicImage.setPixel(0, 0, kBlack);
    doc.PicMask.setPixel(5, 1, kWhite); // inverting red, outside the rectangle
    doc.clearToTransparent(1, 1, 3, 2);
    EXPECT_EQ(picture(doc, 7, 4), AsciiArt::text({
                                      "#rrrrrr",
                                      "r...rir",
                                      "r...rrr",
                                      "rrrrrrr",
                                  }));
    // Corners the other way round, and a single pixel.
    doc.clearToTransparent(6, 3, 5, 2);
    doc.clearToTransparent(0, 0, 0, 0);
    EXPECT_EQ(picture(doc, 7, 4), AsciiArt::text({
                                      ".rrrrrr",
                                      "r...rir",
                                      "r...r..",
                                      "rrrrr..",
                                  }));
    EXPECT_TRUE(doc.isTransparent(6, 3));
    EXPECT_FALSE(doc.isTransparent(5, 1)); // inverting, not transparent
}

TEST(IconDocumentTest, ResizingGivesEveryPlaneItsSizeAndClearsThem) {
    IconDocument doc;
    EXPECT_EQ(doc.size, 32);
    for (const auto& [index, size, zoom] : {std::tuple{2, 48, 8}, {0, 16, 24}, {1, 32, 12}}) {
        SCOPED_TRACE(size);
        doc.PicImage.fill(0x123456);
        doc.PicMask.fill(kBlack);
        doc.resize(index);
        EXPECT_EQ(doc.size, size);
        EXPECT_EQ(doc.zoom * size, 384);
        EXPECT_EQ(doc.zoom, zoom);
        EXPECT_EQ(doc.PicImage, Plane(size, size, kBlack));
        EXPECT_EQ(doc.PicMask, Plane(size, size, kWhite));
        EXPECT_EQ(doc.PicSelImage.width(), size);
        EXPECT_EQ(doc.PicSelMask.height(), size);
        EXPECT_EQ(doc.PicCol.width(), 2 * size);
        EXPECT_EQ(doc.PicCol.height(), size);
        for (const auto& buffer : doc.colourBuffers)
            EXPECT_EQ(buffer.size(), static_cast<std::size_t>(size * size));
        EXPECT_EQ(IconDocument::indexForSize(size), index);
        EXPECT_EQ(IconDocument::sizeForIndex(index), size);
    }
    EXPECT_EQ(IconDocument::indexForSize(24), -1);
}

} // namespace
