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
            const bool opaque = doc.PicMask.pixel(x, y) == kBlack;
            const bool black = doc.PicImage.pixel(x, y) == kBlack;
            text += opaque ? (black ? '#' : 'r') : (black ? '.' : 'i');
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
    doc.PicMask.setPixel(5, 1, kWhite);     // inverting red, outside the rectangle
    doc.clearToTransparent(24, 24, 96, 72); // icon pixels (1, 1) to (3, 2)
    EXPECT_EQ(picture(doc, 7, 4), AsciiArt::text({"#rrrrrr", "r...rir", "r...rrr", "rrrrrrr"}));
    // Corners off the cell corners truncate; and a single pixel.
    doc.clearToTransparent(5 * 24 + 5, 2 * 24 + 23, 7 * 24 + 10, 4 * 24);
    doc.clearToTransparent(0, 0, 24, 24);
    EXPECT_EQ(picture(doc, 7, 4), AsciiArt::text({".rrrrrr", "r...rir", "r...r..", "rrrrr.."}));
    EXPECT_TRUE(doc.isTransparent(6, 3));
    EXPECT_FALSE(doc.isTransparent(5, 1)); // inverting, not transparent
}

} // namespace
