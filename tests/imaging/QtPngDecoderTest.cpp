#include "imaging/QtPngDecoder.h"
#include "fileio/IcoIconSource.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace {

// A one-image icon file whose image is the PNG of picture.
QByteArray pngIcon(const QImage& picture) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, "PNG"));
    const quint32 length = static_cast<quint32>(png.size());
    const char header[22] = {0,
                             0,
                             1,
                             0,
                             1,
                             0,
                             64,
                             64,
                             0,
                             0,
                             1,
                             0,
                             32,
                             0,
                             static_cast<char>(length & 0xFF),
                             static_cast<char>(length >> 8 & 0xFF),
                             static_cast<char>(length >> 16),
                             0,
                             22,
                             0,
                             0,
                             0};
    return QByteArray(header, 22) + png;
}

TEST(QtPngDecoderTest, APngImageGivesPlanesLikeA32BitImageWithAlpha) {
    // Four 32 x 32 quadrants, shrunk to 16 x 16 each: opaque, clear,
    // two-thirds opaque (weighted by alpha) and just under half (clear).
    QImage picture(64, 64, QImage::Format_ARGB32);
    const QRgb quadrants[4] = {qRgba(200, 100, 50, 255), qRgba(10, 20, 30, 0),
                               qRgba(255, 128, 0, 170), qRgba(90, 90, 90, 127)};
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            picture.setPixel(x, y, quadrants[(y / 32) * 2 + x / 32]);
    const QByteArray icon = pngIcon(picture);

    PngDecoder::install(nullptr);
    EXPECT_FALSE(IcoIconSource(icon).image(0).ok());

    const QtPngDecoder decoder;
    PngDecoder::install(&decoder);
    const IconLoadResult got = IcoIconSource(icon).image(0);
    PngDecoder::install(nullptr);
    ASSERT_TRUE(got.ok());
    const std::pair<Colour, Colour> want[4] = {
        {rgb(200, 100, 50), kBlack}, {kBlack, kWhite}, {rgb(170, 85, 0), kBlack}, {kBlack, kWhite}};
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const auto& [image, mask] = want[(y / 16) * 2 + x / 16];
            ASSERT_EQ(std::pair(got.image.pixel(x, y), got.mask.pixel(x, y)),
                      std::pair(image, mask))
                << x << ", " << y;
        }
}

} // namespace
