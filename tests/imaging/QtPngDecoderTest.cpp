#include "imaging/QtPngDecoder.h"
#include "fileio/IcoBuilder.h"
#include "fileio/IcoIconSource.h"
#include "platform/Raster.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace {

TEST(QtPngDecoderTest, APngImageGivesPlanesLikeA32BitImageWithAlpha) {
    // Four 32 x 32 quadrants, shrunk to 16 x 16 each: opaque, clear, two
    // thirds opaque (weighted by alpha) and just under half (clear).
    const QRgb quadrants[4] = {qRgba(200, 100, 50, 255), qRgba(10, 20, 30, 0),
                               qRgba(255, 128, 0, 170), qRgba(90, 90, 90, 127)};
    QImage picture(64, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            picture.setPixel(x, y, quadrants[(y / 32) * 2 + x / 32]);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(picture.save(&buffer, "PNG"));
    // A one-image icon file: the directory, then the PNG at offset 22.
    const IcoIconSource icon(IcoBuilder().header(1, 1).entry(64, 32, png.size(), 22).bytes + png);

    PngDecoder::install(nullptr);
    EXPECT_FALSE(icon.image(0).ok());
    const QtPngDecoder decoder;
    PngDecoder::install(&decoder);
    const IconLoadResult got = icon.image(0);
    PngDecoder::install(nullptr);
    Plane mask(32, 32, kWhite), image(32, 32, kBlack);
    fillRect(mask, 0, 0, 16, 32, kBlack);
    fillRect(image, 0, 0, 16, 16, rgb(200, 100, 50));
    fillRect(image, 0, 16, 16, 32, rgb(170, 85, 0));
    EXPECT_EQ(got.mask, mask);
    EXPECT_EQ(got.image, image);
}

} // namespace
