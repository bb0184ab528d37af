#include "IcoBuilder.h"

#include "fileio/IcoFile.h"
#include "fileio/IconListing.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace {

TEST(IcoFileTest, ListingNamesEveryEntryBySizeAndDepthInDirectoryOrder) {
    QByteArray file = icoFile(
        {StoredImage(16, 4, std::vector<Colour>(16)), StoredImage(32, 8, std::vector<Colour>(256)),
         StoredImage(48, 1, std::vector<Colour>(2)), StoredImage(24, 24), StoredImage(64, 32)});
    // The fourth image's biHeight made odd: it is halved as a real number.
    file.replace(qFromLittleEndian<qint32>(file.constData() + 6 + 3 * 16 + 12) + 8, 4, le(31, 4));
    const std::vector<IconListLine> expected = {{"16 x 16 ... 16 Color", 4},
                                                {"32 x 32 ... 256 Color", 8},
                                                {"48 x 48 ... Monochrome", 1},
                                                {"24 x 15.5 ... True Color", 24},
                                                {"64 x 64 ... True Color", 24}};
    EXPECT_EQ(IcoFile(file).listing(), expected);

    // Choosing a line reads the numbers before and after the first "x",
    // rounding halves to even; the largest sizes a file can give come back
    // whole, so a refusal names them as the file does.
    const std::tuple<QString, int, int> lines[] = {
        {"48 x 24.5 ... Monochrome", 48, 24},
        {"16 x 15.5 ... True Color", 16, 16},
        {"no size", 0, 0},
        {"2147483647 x 1000000000 ... True Color", 2147483647, 1000000000},
        {"-2147483648 x 1073741823.5 ... Monochrome", -2147483648, 1073741824}};
    for (const auto& [text, width, height] : lines)
        EXPECT_EQ(IconListing::describe(2, {text, 8}), (IconDescription{2, 8, width, height}))
            << text.toStdString();
}

TEST(IcoFileTest, EveryDepthAndSizeReadsAsStoredAloneOrAsOneOfSeveral) {
    // The table's colours are distinct, so a nibble or bit taken from the
    // wrong place shows; every padding bit is set and must be skipped.
    for (int size : {16, 32, 48})
        for (int depth : {1, 4, 8, 24}) {
            SCOPED_TRACE(testing::Message() << size << " at " << depth << " bits");
            TestIcon icon(size, depth);
            StoredImage& stored = icon.stored;
            for (qint64 row = 0; row < size; ++row)
                for (qint64 b = size / 8; b < stored.maskRowBytes(); ++b) {
                    stored.maskRows[row * stored.maskRowBytes() + b] = '\xFF';
                    if (depth == 1)
                        stored.colourRows[row * stored.colourRowBytes() + b] = '\xFF';
                }
            const QByteArray two = icoFile({StoredImage(16, 24), stored});
            for (const IconLoadResult& r : {IcoFile(icon.file()).image(0), IcoFile(two).image(1),
                                            IcoFile(two).chosenImage({1, depth, size, size})}) {
                EXPECT_EQ(r.mask, icon.mask);
                EXPECT_EQ(r.image, icon.image);
            }
        }
}

TEST(IcoFileTest, ThirtyTwoBitsAreDrawnByAlphaAloneButReadAsTwentyFourInAMultiImageFile) {
    StoredImage image(16, 32);
    // Bottom row, blue green red alpha: opaque, half and fully transparent.
    image.colourRows.replace(0, 12,
                             QByteArray("\x32\x64\xC8\xFF\x32\x64\xC8\x80\x33\x64\xC8\0", 12));
    image.setTransparent(2, 15);
    const IconLoadResult single = IcoFile(icoFile({image})).image(0);
    EXPECT_EQ(single.image.pixel(0, 15), rgb(200, 100, 50));
    EXPECT_EQ(single.image.pixel(1, 15), rgb(100, 50, 25));
    EXPECT_EQ(single.image.pixel(2, 15), kBlack);
    EXPECT_EQ(single.mask.pixel(1, 15), kBlack);

    // Kept from the program's own decoder: three bytes a pixel, alpha and all.
    const QByteArray two = icoFile({image, StoredImage(16, 24)});
    ASSERT_EQ(IcoFile(two).listing()->front(), (IconListLine{"16 x 16 ... True Color", 24}));
    const IconLoadResult multi = IcoFile(two).chosenImage({0, 24, 16, 16});
    EXPECT_EQ(multi.image.pixel(0, 15), rgb(0xC8, 0x64, 0x32));
    EXPECT_EQ(multi.image.pixel(1, 15), rgb(0x64, 0x32, 0xFF));
    EXPECT_EQ(multi.image.pixel(2, 15), rgb(0x33, 0x80, 0xC8));

    // With no alpha anywhere a single image is drawn as stored.
    StoredImage opaque(16, 32);
    opaque.setColour(3, 4, rgb(9, 8, 7));
    EXPECT_EQ(IcoFile(icoFile({opaque})).image(0).image.pixel(3, 4), rgb(9, 8, 7));
}

} // namespace
