#include "IcoBuilder.h"

#include "fileio/ByteView.h"
#include "fileio/IconReader.h"
#include "fileio/IconWriter.h"
#include "fileio/PixelEncoder.h"

#include <gtest/gtest.h>

namespace {

constexpr int kTwo = 2, kSixteen = 16, kTwoFiftySix = 256, kTrue = -1;

TEST(IconWriterTest, IconFilesHaveTheLengthsAndFieldsOfTheirDepthAndSize) {
    const struct {
        int size, colourCount, depth, bytesInRes, tableBytes;
    } cases[] = {
        {16, kTwo, 1, 176, 8},
        {16, kSixteen, 4, 296, 64},
        {16, kTwoFiftySix, 8, 1384, 1024},
        {16, kTrue, 24, 872, 0},
        {32, kTwo, 1, 304, 8},
        {32, kSixteen, 4, 744, 64},
        {32, kTwoFiftySix, 8, 2216, 1024},
        {32, kTrue, 24, 3240, 0},
        {48, kTwo, 1, 816, 8},
        {48, kSixteen, 4, 1640, 64},
        {48, kTwoFiftySix, 8, 3752, 1024},
        {48, kTrue, 24, 7336, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.size << " at " << c.depth << " bits");
        Plane image(c.size, c.size, rgb(10, 20, 30));
        const QByteArray file = IconWriter::iconBytes(Plane(c.size, c.size), image, c.colourCount);
        const ByteView f(file);
        ASSERT_EQ(file.size(), 22 + c.bytesInRes);
        // Directory header and entry.
        EXPECT_EQ(f.u16(0), 0);
        EXPECT_EQ(f.u16(2), 1);
        EXPECT_EQ(f.u16(4), 1);
        EXPECT_EQ(f.u8(6), c.size);
        EXPECT_EQ(f.u8(7), c.size);
        EXPECT_EQ(f.u8(8), 0);
        EXPECT_EQ(f.u8(9), 0);
        EXPECT_EQ(f.u16(10), 1);
        EXPECT_EQ(f.u16(12), c.depth);
        EXPECT_EQ(f.i32(14), c.bytesInRes);
        EXPECT_EQ(f.i32(18), 22);
        // BITMAPINFOHEADER.
        EXPECT_EQ(f.i32(22), 40);
        EXPECT_EQ(f.i32(26), c.size);
        EXPECT_EQ(f.i32(30), 2 * c.size);
        EXPECT_EQ(f.u16(34), 1);
        EXPECT_EQ(f.u16(36), c.depth);
        for (int field = 38; field < 62; field += 4)
            EXPECT_EQ(f.u32(field), 0u) << field;
        if (c.depth < 8) { // the 2- and 16-entry tables are written all black
            EXPECT_EQ(file.mid(62, c.tableBytes), QByteArray(c.tableBytes, 0));
        }
    }
}

TEST(IconWriterTest, MonochromeRowsAreBottomUpWithTheirPadding) {
    const struct { int size, rowBytes; } cases[] = {{16, 4}, {32, 4}, {48, 8}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        Plane image(c.size, c.size, kBlack);
        Plane mask(c.size, c.size, kBlack);
        image.setPixel(0, c.size - 1, kWhite); // bottom-left: first stored bit
        image.setPixel(9, c.size - 1, kWhite);
        image.setPixel(1, c.size - 1, rgb(255, 255, 254)); // not exactly white
        mask.setPixel(c.size - 1, 0, kWhite);              // top-right: last mask bit
        const QByteArray file = IconWriter::iconBytes(mask, image, kTwo);
        const qint64 colour = 22 + 40 + 8;
        const qint64 maskAt = colour + c.rowBytes * c.size;
        QByteArray firstRow(c.rowBytes, 0);
        firstRow[0] = '\x80';
        firstRow[1] = '\x40';
        EXPECT_EQ(file.mid(colour, c.rowBytes), firstRow);
        EXPECT_EQ(file.mid(colour + c.rowBytes, c.rowBytes * (c.size - 1)),
                  QByteArray(c.rowBytes * (c.size - 1), 0));
        QByteArray lastMaskRow(c.rowBytes, 0);
        lastMaskRow[c.size / 8 - 1] = '\x01';
        EXPECT_EQ(file.mid(maskAt, c.rowBytes * (c.size - 1)),
                  QByteArray(c.rowBytes * (c.size - 1), 0));
        EXPECT_EQ(file.mid(maskAt + c.rowBytes * (c.size - 1)), lastMaskRow);
    }
}

TEST(IconWriterTest, EightBitIconWritesItsPaletteAndIndices) {
    Plane image(16, 16, kBlack);
    image.setPixel(0, 15, rgb(1, 2, 3)); // first stored pixel
    image.setPixel(1, 15, kWhite);
    image.setPixel(2, 15, rgb(4, 5, 6));
    image.setPixel(3, 0, rgb(4, 5, 6)); // seen first in scan order
    const QByteArray file = IconWriter::iconBytes(Plane(16, 16), image, kTwoFiftySix);
    const qint64 table = 62;
    EXPECT_EQ(file.mid(table, 12), QByteArray("\0\0\0\0\6\5\4\0\3\2\1\0", 12));
    EXPECT_EQ(file.mid(table + 4 * 255, 4), QByteArray("\xFF\xFF\xFF\0", 4));
    const qint64 rows = table + 1024;
    EXPECT_EQ(file.mid(rows, 4), QByteArray("\2\xFF\1\0", 4));
    EXPECT_EQ(static_cast<quint8>(file[rows + 15 * 16 + 3]), 1);
}

TEST(IconWriterTest, ColoursMissingFromTheTableKeepThePreviousIndex) {
    Plane row(6, 1, kBlack);
    const Colour a = rgb(1, 1, 1), b = rgb(2, 2, 2), unknown = rgb(9, 9, 9);
    const Colour pixels[] = {unknown, a, unknown, kWhite, unknown, b};
    for (int x = 0; x < 6; ++x)
        row.setPixel(x, 0, pixels[x]);

    ColourTable table(256, kBlack);
    table[7] = a;
    table[9] = b;
    table[12] = a; // a second copy: the first entry wins
    QByteArray eight;
    PixelEncoder::encode8(row, table, eight);
    EXPECT_EQ(eight, QByteArray("\0\7\7\xFF\xFF\x09\0\0", 8)); // padded to 8 bytes

    // At 4 bits each half of the byte remembers its own last index.
    ColourTable table16(16, kWhite);
    table16[3] = a;
    table16[5] = b;
    const Colour pixels4[] = {a, b, unknown, unknown, b, unknown};
    for (int x = 0; x < 6; ++x)
        row.setPixel(x, 0, pixels4[x]);
    QByteArray four;
    PixelEncoder::encode4(row, table16, four);
    EXPECT_EQ(four, QByteArray("\x35\x35\x55\0", 4));

    // With the all-black table of 4-bit files only black has an index.
    QByteArray black;
    PixelEncoder::encode4(row, ModPalette::blackTable(16), black);
    EXPECT_EQ(black, QByteArray(4, 0));
}

TEST(IconWriterTest, CursorCarriesTheHotSpotInItsEntry) {
    Plane image(32, 32, rgb(7, 7, 7));
    const QByteArray cursor = IconWriter::cursorBytes(Plane(32, 32), image, kTwoFiftySix, 5, 7);
    const QByteArray icon = IconWriter::iconBytes(Plane(32, 32), image, kTwoFiftySix);
    const ByteView f(cursor);
    ASSERT_EQ(cursor.size(), icon.size());
    EXPECT_EQ(f.u16(2), 2);
    EXPECT_EQ(f.u16(10), 5);
    EXPECT_EQ(f.u16(12), 7);
    EXPECT_EQ(f.u16(34), 1);
    EXPECT_EQ(f.u16(36), 8);
    // Apart from the type and the two hot-spot fields it is the icon.
    QByteArray patched = cursor;
    patched.replace(2, 2, icon.mid(2, 2)).replace(10, 4, icon.mid(10, 4));
    EXPECT_EQ(patched, icon);
}

TEST(IconWriterTest, BitmapFilesHaveTheirSizeOffsetAndHeader) {
    const struct {
        int width, colourCount, depth, fileSize, pixelOffset;
    } cases[] = {
        {16, kTwo, 1, 126, 62},
        {16, kSixteen, 4, 246, 118},
        {16, kTwoFiftySix, 8, 1334, 1078},
        {16, kTrue, 24, 822, 54},
        {32, kTwo, 1, 190, 62},
        {32, kSixteen, 4, 630, 118},
        {32, kTwoFiftySix, 8, 2102, 1078},
        {32, kTrue, 24, 3126, 54},
        {48, kTwo, 1, 446, 62},
        {48, kSixteen, 4, 1270, 118},
        {48, kTwoFiftySix, 8, 3382, 1078},
        {48, kTrue, 24, 6966, 54},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " at " << c.depth << " bits");
        const QByteArray file =
            IconWriter::bitmapBytes(Plane(c.width, c.width, rgb(3, 4, 5)), c.colourCount);
        const ByteView f(file);
        ASSERT_EQ(file.size(), c.fileSize);
        EXPECT_EQ(file.left(2), "BM");
        EXPECT_EQ(f.i32(2), c.fileSize);
        EXPECT_EQ(f.u32(6), 0u);
        EXPECT_EQ(f.i32(10), c.pixelOffset);
        EXPECT_EQ(f.i32(14), 40);
        EXPECT_EQ(f.i32(18), c.width);
        EXPECT_EQ(f.i32(22), c.width);
        EXPECT_EQ(f.u16(26), 1);
        EXPECT_EQ(f.u16(28), c.depth);
        EXPECT_EQ(f.u32(30), 0u);
        EXPECT_EQ(f.i32(34), c.fileSize - c.pixelOffset);
        for (int field = 38; field < 54; field += 4)
            EXPECT_EQ(f.u32(field), 0u) << field;
    }
}

TEST(IconWriterTest, WritersRefuseEmptyOrMismatchedPlanes) {
    EXPECT_TRUE(IconWriter::iconBytes(Plane(), Plane(), kTwo).isEmpty());
    EXPECT_TRUE(IconWriter::iconBytes(Plane(16, 16), Plane(32, 32), kTwo).isEmpty());
    EXPECT_TRUE(IconWriter::cursorBytes(Plane(300, 300), Plane(300, 300), kTwo, 0, 0).isEmpty());
    EXPECT_TRUE(IconWriter::bitmapBytes(Plane(), kTrue).isEmpty());
}

class MultiIconRewrite : public testing::Test {
  protected:
    void SetUp() override {
        StoredImage first(16, 4, std::vector<Colour>(16, rgb(1, 1, 1)));
        first.colourRows.fill('\x12');
        StoredImage second(32, 8, std::vector<Colour>(256, rgb(2, 2, 2)));
        StoredImage third(48, 24);
        third.colourRows.fill('\x33');
        source = icoFile({first, second, third});
        firstData = first.data();
        thirdData = third.data();
    }
    QByteArray source, firstData, thirdData;
};

TEST_F(MultiIconRewrite, EditedImageComesFirstAndTheOthersFollowWithNewOffsets) {
    Plane image(32, 32, rgb(200, 100, 50));
    Plane mask(32, 32, kBlack);
    mask.setPixel(0, 0, kWhite);
    const auto out = IconWriter::multiIconBytes(mask, image, kTrue, source, {1, 8, 32, 32});
    ASSERT_TRUE(out);
    const ByteView f(*out);
    const qint64 newStart = 6 + 3 * 16, newLength = 3240;
    ASSERT_EQ(out->size(), newStart + newLength + firstData.size() + thirdData.size());
    EXPECT_EQ(out->left(6), source.left(6));
    // The new entry, then entries 0 and 2 with only their offsets changed.
    EXPECT_EQ(out->mid(6, 16),
              IcoBuilder().entry({32, 32, 0, 0, 1, 24, newLength, newStart}).bytes);
    EXPECT_EQ(out->mid(22, 12), source.mid(6, 12));
    EXPECT_EQ(f.i32(34), newStart + newLength);
    EXPECT_EQ(out->mid(38, 12), source.mid(38, 12));
    EXPECT_EQ(f.i32(50), newStart + newLength + firstData.size());
    // The edited image is written as a one-image icon would be, but with its
    // length in the image-size field.
    QByteArray single = IconWriter::iconBytes(mask, image, kTrue).mid(22);
    single.replace(20, 4, QByteArray("\xA8\x0C\0\0", 4)); // 3240
    EXPECT_EQ(out->mid(newStart, newLength), single);
    EXPECT_EQ(out->mid(newStart + newLength, firstData.size()), firstData);
    EXPECT_EQ(out->right(thirdData.size()), thirdData);

    const std::vector<IconListLine> lines = {{"32 x 32 ... True Color", 24},
                                             {"16 x 16 ... 16 Color", 4},
                                             {"48 x 48 ... True Color", 24}};
    EXPECT_EQ(IconReader::listIcons(*out), lines);
    const IconLoadResult back = IconReader::loadMultiIcon(*out, {0, 24, 32, 32});
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(back.image, image);
    EXPECT_EQ(back.mask, mask);
}

TEST_F(MultiIconRewrite, UnreadableSourcesAndChoicesGiveNoFile) {
    const Plane plane(32, 32);
    QByteArray badOffset = source;
    badOffset.replace(6 + 2 * 16 + 12, 4, QByteArray("\0\0\1\0", 4));
    QByteArray longData = source;
    longData.replace(6 + 16 + 8, 4, QByteArray("\0\0\0\x10", 4));
    const struct {
        const char* what;
        QByteArray bytes;
        int index;
    } cases[] = {{"index past the count", source, 3},
                 {"negative index", source, -1},
                 {"other image's offset past the end", badOffset, 1},
                 {"other image's length past the end", longData, 0},
                 {"truncated directory", source.left(40), 0},
                 {"empty", QByteArray(), 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_FALSE(IconWriter::multiIconBytes(plane, plane, kTwo, c.bytes, {c.index, 8, 32, 32}));
    }
}

} // namespace
