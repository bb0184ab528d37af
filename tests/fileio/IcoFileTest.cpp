#include "IcoBuilder.h"

#include "fileio/IcoFile.h"
#include "fileio/IconListing.h"
#include "fileio/ModFileIO.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// Distinct colours, so a wrong index shows as a wrong colour.
std::vector<Colour> distinct(int entries) {
    std::vector<Colour> table;
    for (int i = 0; i < entries; ++i)
        table.push_back(rgb(i, 255 - i, (i * 37) & 0xFF));
    return table;
}

// A cursor, an entry 256 pixels wide, a negative offset and counts of 0 and
// 32767 are in the bad-input table.
TEST(IcoFileTest, HeaderTestAndCountReadTheHeaderAndFirstEntryOnly) {
    const QByteArray file = icoFile({StoredImage(16, 8, distinct(256))});
    // Offsets: idReserved 0, idType 2, idCount 4; entry bWidth 6, bHeight 7,
    // bReserved 9, dwBytesInRes 14, dwImageOffset 18.
    const std::tuple<const char*, int, QByteArray, bool, int> cases[] = {
        {"as written", 0, le(0, 2), true, 1},
        {"reserved 1", 0, le(1, 2), false, 1},
        {"type 0", 2, le(0, 2), false, 1},
        {"count -1", 4, le(-1, 2), false, 0},
        {"width 24", 6, le(24, 1), true, 1},
        {"height 0", 7, le(0, 1), false, 1},
        {"entry reserved 1", 9, le(1, 1), false, 1},
        {"bytes in resource 0", 14, le(0, 4), false, 1},
        {"bytes in resource negative", 14, le(0x80000000, 4), false, 1},
        {"offset 0", 18, le(0, 4), false, 1}};
    for (const auto& [what, offset, value, valid, count] : cases) {
        SCOPED_TRACE(what);
        const QByteArray bytes = QByteArray(file).replace(offset, value.size(), value);
        EXPECT_EQ(IcoFile(bytes).isIconFile(), valid);
        EXPECT_EQ(IcoFile(bytes).count(), count);
    }
}

TEST(IcoFileTest, ListingNamesEveryEntryBySizeAndDepthInDirectoryOrder) {
    QByteArray file =
        icoFile({StoredImage(16, 4, distinct(16)), StoredImage(32, 8, distinct(256)),
                 StoredImage(48, 1, distinct(2)), StoredImage(24, 24), StoredImage(64, 32)});
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
            for (const IconLoadResult& r : {IcoFile(icon.file()).image(0),
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

TEST(IcoFileTest, SizesTheEditorCannotHoldGetTheDimensionMessage) {
    // biWidth, biHeight and the size the message names (none: the image loads).
    const std::tuple<qint64, qint64, int, int> cases[] = {
        {32, 32, 32, 16}, {24, 48, 24, 24}, {16, -33, 16, -16}, {16, 33, 0, 0}};
    for (const auto& [biWidth, biHeight, width, height] : cases) {
        SCOPED_TRACE(biHeight);
        IcoBuilder b;
        b.header(1, 1).entry(16, 24, 40, 22).info(biWidth, biHeight, 24);
        const IconLoadResult r = IcoFile(b.bytes.append(QByteArray(4000, 0))).image(0);
        EXPECT_EQ(ModFileIO::loadMessage(r, false),
                  width ? ModFileIO::dimensionMessage(width, height) : "");
    }
    const QByteArray two = icoFile({StoredImage(24, 8, distinct(256)), StoredImage(16, 24)});
    const IconLoadResult r = IcoFile(two).chosenImage({0, 8, 24, 24});
    EXPECT_EQ(r.status, LoadStatus::BadDimensions);
    EXPECT_EQ(ModFileIO::loadMessage(r, true), ModFileIO::dimensionMessage(24, 24));
    EXPECT_EQ(IcoFile(two).chosenImage({1, 24, 32, 16}).status, LoadStatus::BadDimensions);
}

} // namespace
