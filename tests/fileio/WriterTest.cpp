#include "IcoBuilder.h"
#include "support/AsciiArt.h"

#include "fileio/BmpFile.h"
#include "fileio/IcoFile.h"
#include "fileio/PixelEncoder.h"

#include <gtest/gtest.h>

namespace {

constexpr int kTrue = -1;

TEST(WriterTest, IconsCursorsAndBitmapsHaveTheLengthsAndHeadersOfTheirDepthAndSize) {
    // Size, colour count, depth, icon and bitmap file lengths, pixel offset.
    const std::tuple<int, int, int, int, int, int> layouts[] = {
        {16, 2, 1, 198, 126, 62},       {16, 16, 4, 318, 246, 118},
        {16, 256, 8, 1406, 1334, 1078}, {16, kTrue, 24, 894, 822, 54},
        {32, 2, 1, 326, 190, 62},       {32, 16, 4, 766, 630, 118},
        {32, 256, 8, 2238, 2102, 1078}, {32, kTrue, 24, 3262, 3126, 54},
        {48, 2, 1, 838, 446, 62},       {48, 16, 4, 1662, 1270, 118},
        {48, 256, 8, 3774, 3382, 1078}, {48, kTrue, 24, 7358, 6966, 54}};
    for (const auto& [size, colourCount, depth, iconSize, bitmapSize, pixelOffset] : layouts) {
        SCOPED_TRACE(testing::Message() << size << " at " << depth << " bits");
        const Plane image(size, size, rgb(10, 20, 30));
        const QByteArray icon = IcoFile::iconBytes(Plane(size, size), image, colourCount);
        EXPECT_EQ(icon.size(), iconSize);
        IcoBuilder header;
        header.header(1, 1).entry(size, depth, iconSize - 22, 22);
        EXPECT_EQ(icon.left(62), header.info(size, 2 * size, depth).bytes);
        const QByteArray bitmap = BmpFile::bytes(image, colourCount);
        if (depth < 8) { // the 2- and 16-entry tables are written all black
            EXPECT_EQ(icon.mid(62, 4 << depth), QByteArray(4 << depth, 0));
            EXPECT_EQ(bitmap.mid(54, 4 << depth), QByteArray(4 << depth, 0));
        }
        // A cursor is the icon with type 2 and the hot spot in its entry.
        EXPECT_EQ(IcoFile::cursorBytes(Plane(size, size), image, colourCount, 5, 7),
                  QByteArray(icon).replace(2, 2, le(2, 2)).replace(10, 4, le(5, 2) + le(7, 2)));
        EXPECT_EQ(bitmap.size(), bitmapSize);
        IcoBuilder file;
        file.u8('B').u8('M').u32(bitmapSize).u32(0).u32(pixelOffset);
        EXPECT_EQ(bitmap.left(54), file.info(size, size, depth, bitmapSize - pixelOffset).bytes);
    }
    EXPECT_TRUE(IcoFile::cursorBytes(Plane(300, 300), Plane(300, 300), 2, 0, 0).isEmpty());
}

TEST(WriterTest, MonochromeRowsAreBottomUpWithTheirPadding) {
    for (const int size : {16, 32, 48}) {
        SCOPED_TRACE(size);
        const int rowBytes = size == 48 ? 8 : 4, bits = rowBytes * size;
        Plane image(size, size, kBlack), mask(size, size, kBlack);
        image.setPixel(0, size - 1, kWhite);             // bottom-left: the first stored bit
        image.setPixel(1, size - 1, rgb(255, 255, 254)); // not exactly white
        image.setPixel(9, size - 1, kWhite);
        mask.setPixel(size - 1, 0, kWhite); // top-right: the last mask bit
        QByteArray colour(bits, 0), masks(bits, 0);
        colour.replace(0, 2, "\x80\x40");
        masks[bits - rowBytes + size / 8 - 1] = 1;
        EXPECT_EQ(IcoFile::iconBytes(mask, image, 2).mid(70), colour + masks);
    }
}

TEST(WriterTest, EightBitIconWritesItsPaletteAndIndices) {
    Plane image(16, 16, kBlack);
    image.setPixel(0, 15, rgb(1, 2, 3)); // the first stored pixel
    image.setPixel(1, 15, kWhite);
    image.setPixel(2, 15, rgb(4, 5, 6));
    image.setPixel(3, 0, rgb(4, 5, 6)); // seen first in scan order
    const QByteArray file = IcoFile::iconBytes(Plane(16, 16), image, 256);
    EXPECT_EQ(file.mid(62, 12), QByteArray("\0\0\0\0\6\5\4\0\3\2\1\0", 12));
    EXPECT_EQ(file.mid(1086, 4), QByteArray("\2\xFF\1\0", 4));
    EXPECT_EQ(file[1086 + 15 * 16 + 3], 1);
}

TEST(WriterTest, ColoursMissingFromTheTableKeepThePreviousIndex) {
    const Colour a = rgb(1, 1, 1), b = rgb(2, 2, 2);
    const AsciiArt::Palette colours{{'a', a}, {'b', b}, {'w', kWhite}, {'?', rgb(9, 9, 9)}};
    ColourTable table(256, kBlack);
    table[7] = table[12] = a; // the first copy wins
    table[9] = b;
    QByteArray eight, four, black;
    PixelEncoder::encode8(AsciiArt::toPlane({"?a?w?b"}, colours), table, eight);
    EXPECT_EQ(eight, QByteArray("\0\7\7\xFF\xFF\x09\0\0", 8)); // padded to 8 bytes

    // At 4 bits each half of a byte remembers its own last index.
    ColourTable table16(16, kWhite);
    table16[3] = a;
    table16[5] = b;
    const Plane fourRow = AsciiArt::toPlane({"ab??b?"}, colours);
    PixelEncoder::encode4(fourRow, table16, four);
    EXPECT_EQ(four, QByteArray("\x35\x35\x55\0", 4));
    // With the all-black table of 4-bit files only black has an index.
    PixelEncoder::encode4(fourRow, ModPalette::blackTable(16), black);
    EXPECT_EQ(black, QByteArray(4, 0));
}

TEST(WriterTest, EditedImageOfThreeComesFirstAndTheOthersFollowWithNewOffsets) {
    const TestIcon first(16, 4), third(48, 24), edited(32, 24);
    const QByteArray source = icoFile({first.stored, TestIcon(32, 8).stored, third.stored});
    const Plane &mask = edited.mask, &image = edited.image;
    const auto out = IcoFile(source).withImageReplaced(mask, image, kTrue, {1, 8, 32, 32});
    ASSERT_TRUE(out);
    const qint64 start = 6 + 3 * 16, length = 3240, firstLength = first.stored.data().size();
    // The header, the new entry, then entries 0 and 2 with only their offsets
    // changed; the image as a one-image icon has it, its length in biSizeImage.
    QByteArray expected = source.left(6) + IcoBuilder().entry(32, 24, length, start).bytes;
    expected += source.mid(6, 12) + le(start + length, 4) + source.mid(38, 12) +
                le(start + length + firstLength, 4);
    expected += IcoFile::iconBytes(mask, image, kTrue).mid(22).replace(20, 4, le(length, 4));
    EXPECT_EQ(*out, expected + first.stored.data() + third.stored.data());
}

TEST(WriterTest, MultiRewriteOfAnUnreadableSourceOrChoiceGivesNoFile) {
    const QByteArray source =
        icoFile({StoredImage(16, 24), StoredImage(32, 24), StoredImage(16, 24)});
    const std::tuple<const char*, QByteArray, int> cases[] = {
        {"index past the count", source, 3},
        {"other image's offset past the end", QByteArray(source).replace(50, 4, le(0x10000, 4)), 1},
        {"truncated directory", source.left(40), 0}};
    for (const auto& [what, bytes, index] : cases)
        EXPECT_FALSE(
            IcoFile(bytes).withImageReplaced(Plane(32, 32), Plane(32, 32), 2, {index, 8, 32, 32}))
            << what;
}

} // namespace
