#include "IcoBuilder.h"

#include "fileio/IconReader.h"
#include "fileio/ModFileIO.h"

#include <gtest/gtest.h>

namespace {

// Sixteen distinct colours, so a wrong index shows as a wrong colour.
std::vector<Colour> distinctTable(int entries) {
    std::vector<Colour> table;
    for (int i = 0; i < entries; ++i)
        table.push_back(rgb(i, 255 - i, (i * 37) & 0xFF));
    return table;
}

QByteArray validSingle() {
    return icoFile({StoredImage(16, 8, distinctTable(256))});
}

TEST(IconReaderTest, HeaderTestChecksEachFieldOfTheHeaderAndFirstEntry) {
    // Byte offsets: idReserved 0, idType 2, idCount 4; entry bWidth 6,
    // bHeight 7, bReserved 9, dwBytesInRes 14, dwImageOffset 18.
    const struct {
        const char* what;
        int offset;
        QByteArray value;
        bool valid;
    } cases[] = {
        {"as written", 0, QByteArray("\0\0", 2), true},
        {"reserved 1", 0, QByteArray("\1\0", 2), false},
        {"cursor type 2", 2, QByteArray("\2\0", 2), false},
        {"type 0", 2, QByteArray("\0\0", 2), false},
        {"count 0", 4, QByteArray("\0\0", 2), false},
        {"count -1", 4, QByteArray("\xFF\xFF", 2), false},
        {"count 32767", 4, QByteArray("\xFF\x7F", 2), true},
        {"width 0 (256)", 6, QByteArray("\0", 1), false},
        {"width 24", 6, QByteArray("\x18", 1), true},
        {"height 0", 7, QByteArray("\0", 1), false},
        {"entry reserved 1", 9, QByteArray("\1", 1), false},
        {"bytes in resource 0", 14, QByteArray("\0\0\0\0", 4), false},
        {"bytes in resource negative", 14, QByteArray("\0\0\0\x80", 4), false},
        {"offset 0", 18, QByteArray("\0\0\0\0", 4), false},
        {"offset negative", 18, QByteArray("\xFF\xFF\xFF\xFF", 4), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        QByteArray bytes = validSingle();
        bytes.replace(c.offset, c.value.size(), c.value);
        EXPECT_EQ(IconReader::isIconFile(bytes), c.valid);
    }
    EXPECT_FALSE(IconReader::isIconFile(validSingle().left(21)));
    EXPECT_FALSE(IconReader::isIconFile(validSingle().left(6)));
    EXPECT_FALSE(IconReader::isIconFile(QByteArray()));
}

TEST(IconReaderTest, CountIsTheSignedDirectoryCountOrZero) {
    const struct {
        QByteArray countField;
        int expected;
    } cases[] = {{QByteArray("\1\0", 2), 1},
                 {QByteArray("\3\0", 2), 3},
                 {QByteArray("\0\0", 2), 0},
                 {QByteArray("\xFB\xFF", 2), 0},
                 {QByteArray("\xFF\x7F", 2), 32767}};
    for (const auto& c : cases) {
        QByteArray bytes = validSingle();
        bytes.replace(4, 2, c.countField);
        EXPECT_EQ(IconReader::iconCount(bytes), c.expected);
    }
    EXPECT_EQ(IconReader::iconCount(validSingle().left(5)), 0);
}

TEST(IconReaderTest, ListingNamesEachEntryBySizeAndDepthInDirectoryOrder) {
    const QByteArray two =
        icoFile({StoredImage(16, 4, distinctTable(16)), StoredImage(32, 8, distinctTable(256))});
    const auto lines = IconReader::listIcons(two);
    ASSERT_TRUE(lines);
    const std::vector<IconListLine> expected = {{"16 x 16 ... 16 Color", 4},
                                                {"32 x 32 ... 256 Color", 8}};
    EXPECT_EQ(*lines, expected);

    // Sizes the editor refuses are still listed; 32 bits is "True Color".
    const QByteArray mixed = icoFile({StoredImage(48, 1, distinctTable(2)), StoredImage(24, 24),
                                      StoredImage(64, 32), StoredImage(16, 8, distinctTable(256))});
    const std::vector<IconListLine> mixedLines = {{"48 x 48 ... Monochrome", 1},
                                                  {"24 x 24 ... True Color", 24},
                                                  {"64 x 64 ... True Color", 24},
                                                  {"16 x 16 ... 256 Color", 8}};
    EXPECT_EQ(IconReader::listIcons(mixed), mixedLines);
}

TEST(IconReaderTest, ChoosingALineReadsWidthAndHeightFromItsText) {
    const struct {
        QString text;
        int width, height;
    } cases[] = {{"32 x 32 ... 256 Color", 32, 32},
                 {"16 x 16 ... 16 Color", 16, 16},
                 {"48 x 24 ... Monochrome", 48, 24},
                 {"-3 x 7 ... True Color", -3, 7},
                 {"no size", 0, 0},
                 {"  1 6", 16, 16}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        const IconDescription d = IconReader::describeListLine(2, {c.text, 8});
        EXPECT_EQ(d, (IconDescription{2, 8, c.width, c.height}));
    }
}

TEST(IconReaderTest, FourBitByteHoldsTheLeftPixelInItsHighNibble) {
    StoredImage image(16, 4, distinctTable(16));
    image.colourRows[0] = '\x1F'; // first byte of the bottom row
    const QByteArray bytes = icoFile({image, StoredImage(32, 8, distinctTable(256))});
    for (const IconLoadResult& r : {IconReader::loadMultiIcon(bytes, {0, 4, 16, 16}),
                                    IconReader::loadSingleIcon(icoFile({image}))}) {
        ASSERT_TRUE(r.ok());
        EXPECT_EQ(r.image.pixel(0, 15), distinctTable(16)[1]);
        EXPECT_EQ(r.image.pixel(1, 15), distinctTable(16)[15]);
        EXPECT_EQ(r.image.pixel(2, 15), distinctTable(16)[0]);
        EXPECT_EQ(r.image.pixel(0, 14), distinctTable(16)[0]);
    }
}

TEST(IconReaderTest, MaskByteOfTheLastStoredRowIsTheTopLeftCorner) {
    StoredImage image(16, 24);
    image.maskRows[15 * 4] = '\x80';
    const QByteArray bytes = icoFile({image, image});
    const IconLoadResult r = IconReader::loadMultiIcon(bytes, {1, 24, 16, 16});
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.mask.pixel(0, 0), kWhite);
    for (int x = 1; x < 16; ++x)
        EXPECT_EQ(r.mask.pixel(x, 0), kBlack) << x;
    EXPECT_EQ(r.mask.pixel(0, 15), kBlack);
}

TEST(IconReaderTest, MonochromeRowsOf48PixelsSkipTheirTwoPaddingBytes) {
    StoredImage image(48, 1, {rgb(1, 2, 3), rgb(250, 251, 252)});
    ASSERT_EQ(image.colourRowBytes(), 8);
    ASSERT_EQ(image.maskRowBytes(), 8);
    for (int stored = 0; stored < 48; ++stored) {
        // Pixel x = stored is set in both bitmaps; padding is all ones.
        image.setIndex(stored, 47 - stored, 1);
        image.setTransparent(stored, 47 - stored);
        image.colourRows[stored * 8 + 6] = image.colourRows[stored * 8 + 7] = '\xFF';
        image.maskRows[stored * 8 + 6] = image.maskRows[stored * 8 + 7] = '\xFF';
    }
    const QByteArray bytes = icoFile({image, StoredImage(16, 24)});
    for (const IconLoadResult& r : {IconReader::loadMultiIcon(bytes, {0, 1, 48, 48}),
                                    IconReader::loadSingleIcon(icoFile({image}))}) {
        ASSERT_TRUE(r.ok());
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x) {
                const bool onDiagonal = x == 47 - y;
                ASSERT_EQ(r.image.pixel(x, y), onDiagonal ? rgb(250, 251, 252) : rgb(1, 2, 3))
                    << x << "," << y;
                ASSERT_EQ(r.mask.pixel(x, y), onDiagonal ? kWhite : kBlack) << x << "," << y;
            }
    }
}

TEST(IconReaderTest, TrueColourPixelsAreBlueGreenRed) {
    StoredImage image(32, 24);
    image.colourRows[0] = '\x10'; // blue of the bottom-left pixel
    image.colourRows[1] = '\x20';
    image.colourRows[2] = '\x30';
    image.colourRows[3 * 31 + 2] = '\x7F'; // red of the bottom-right pixel
    const IconLoadResult r = IconReader::loadSingleIcon(icoFile({image}));
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.width, 32);
    EXPECT_EQ(r.image.pixel(0, 31), rgb(0x30, 0x20, 0x10));
    EXPECT_EQ(r.image.pixel(31, 31), rgb(0x7F, 0, 0));
    EXPECT_EQ(r.image.pixel(0, 0), kBlack);
}

TEST(IconReaderTest, SingleImageOf32BitsIsDrawnOverBlackByItsAlpha) {
    StoredImage image(16, 32);
    const auto setArgb = [&image](int x, int y, Colour c, int alpha) {
        image.setColour(x, y, c);
        image.colourRows[(15 - y) * 64 + 4 * x + 3] = static_cast<char>(alpha);
    };
    setArgb(0, 0, rgb(200, 100, 50), 255);
    setArgb(1, 0, rgb(200, 100, 50), 128);
    setArgb(2, 0, rgb(200, 100, 51), 0);
    image.setTransparent(2, 0);
    const IconLoadResult r = IconReader::loadSingleIcon(icoFile({image}));
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.image.pixel(0, 0), rgb(200, 100, 50));
    // 200 * 128 / 255 = 100.39, 100 * 128 / 255 = 50.2, 50 * 128 / 255 = 25.1
    EXPECT_EQ(r.image.pixel(1, 0), rgb(100, 50, 25));
    EXPECT_EQ(r.image.pixel(2, 0), kBlack);
    EXPECT_EQ(r.mask.pixel(2, 0), kWhite);
    EXPECT_EQ(r.mask.pixel(1, 0), kBlack);

    // Without any alpha the colours are drawn as stored.
    StoredImage opaque(16, 32);
    opaque.setColour(3, 4, rgb(9, 8, 7));
    const IconLoadResult plain = IconReader::loadSingleIcon(icoFile({opaque}));
    ASSERT_TRUE(plain.ok());
    EXPECT_EQ(plain.image.pixel(3, 4), rgb(9, 8, 7));
}

TEST(IconReaderTest, ThirtyTwoBitEntryOfAMultiImageFileIsReadAsTwentyFourBits) {
    StoredImage image(16, 32);
    // Bottom row, stored as blue, green, red, alpha per pixel.
    const char row[] = {1, 2, 3, 4, 5, 6, 7, 8};
    image.colourRows.replace(0, 8, QByteArray(row, 8));
    const QByteArray bytes = icoFile({image, StoredImage(16, 24)});
    ASSERT_EQ(IconReader::listIcons(bytes)->front(), (IconListLine{"16 x 16 ... True Color", 24}));
    const IconLoadResult r = IconReader::loadMultiIcon(bytes, {0, 24, 16, 16});
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.image.pixel(0, 15), rgb(3, 2, 1));
    EXPECT_EQ(r.image.pixel(1, 15), rgb(6, 5, 4));
    EXPECT_EQ(r.image.pixel(2, 15), rgb(0, 8, 7));
}

TEST(IconReaderTest, SingleImageHonoursAShortColourTable) {
    StoredImage image(16, 8, {rgb(10, 0, 0), rgb(0, 20, 0)});
    image.setIndex(5, 6, 1);
    image.setIndex(6, 6, 7); // past the table
    IcoBuilder b;
    b.info({40, 16, 32, 8, 0, 2}).table(image.table);
    QByteArray data = b.bytes + image.colourRows + image.maskRows;
    IcoBuilder file;
    file.header(0, 1, 1).entry({16, 16, 2, 0, 1, 8, data.size(), 22}).append(data);
    const IconLoadResult r = IconReader::loadSingleIcon(file.bytes);
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.image.pixel(5, 6), rgb(0, 20, 0));
    EXPECT_EQ(r.image.pixel(6, 6), kBlack);
    EXPECT_EQ(r.image.pixel(0, 0), rgb(10, 0, 0));
}

TEST(IconReaderTest, SizesTheEditorCannotHoldGetTheDimensionMessage) {
    const struct {
        qint64 biWidth, biHeight;
        int width, height;
    } cases[] = {{32, 32, 32, 16}, {24, 48, 24, 24},   {64, 128, 64, 64},
                 {16, 33, 16, 16}, {16, -33, 16, -16}, {0, 0, 0, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.biWidth);
        IcoBuilder b;
        b.header(0, 1, 1)
            .entry({16, 16, 0, 0, 1, 24, 40, 22})
            .info({40, c.biWidth, c.biHeight, 24});
        const IconLoadResult r = IconReader::loadSingleIcon(b.bytes.append(QByteArray(4000, 0)));
        if (c.width == 16 && c.height == 16) {
            EXPECT_TRUE(r.ok()); // an odd height count rounds toward zero
            continue;
        }
        EXPECT_EQ(r.status, LoadStatus::BadDimensions);
        EXPECT_EQ(ModFileIO::loadMessage(r, false), ModFileIO::dimensionMessage(c.width, c.height));
    }
    EXPECT_EQ(ModFileIO::dimensionMessage(32, 16),
              "Icon has dimensions which are incompatible with Sollent.\r\n\r\n32 x 16 pixels.");

    const QByteArray two = icoFile({StoredImage(24, 8, distinctTable(256)), StoredImage(16, 24)});
    const IconLoadResult r = IconReader::loadMultiIcon(two, {0, 8, 24, 24});
    EXPECT_EQ(r.status, LoadStatus::BadDimensions);
    EXPECT_EQ(ModFileIO::loadMessage(r, true),
              "Icon has dimensions which are incompatible with Sollent.\r\n\r\n24 x 24 pixels.");
    EXPECT_EQ(IconReader::loadMultiIcon(two, {1, 24, 32, 16}).status, LoadStatus::BadDimensions);
}

} // namespace
