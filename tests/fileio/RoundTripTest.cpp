#include "fileio/IconReader.h"
#include "fileio/IconWriter.h"
#include "fileio/ModFileIO.h"
#include "fileio/ModPalette.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// An icon with every kind of pixel: opaque colours, transparent (black on
// a white mask) and inverting (a colour on a white mask).
struct Picture {
    Plane mask, image;
};

Picture samplePicture(int size, int colours) {
    Picture p{Plane(size, size, kBlack), Plane(size, size, kBlack)};
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const int n = (x + y * size) % colours;
            p.image.setPixel(x, y, rgb(n % 256, n / 256, 77));
        }
    p.image.setPixel(1, 1, kWhite);
    p.image.setPixel(2, 1, kBlack);
    p.mask.setPixel(3, 1, kWhite); // transparent
    p.image.setPixel(3, 1, kBlack);
    p.mask.setPixel(4, 1, kWhite); // inverting
    p.image.setPixel(4, 1, rgb(12, 34, 56));
    p.mask.setPixel(size - 1, size - 1, kWhite); // inverting white
    p.image.setPixel(size - 1, size - 1, kWhite);
    return p;
}

QByteArray contents(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

TEST(RoundTripTest, EightAndTwentyFourBitIconsKeepEveryPixel) {
    QTemporaryDir dir;
    for (int size : {16, 32, 48})
        for (int count : {256, -1}) {
            SCOPED_TRACE(testing::Message() << size << " x " << size << ", count " << count);
            // 200 colours fit an 8-bit palette; a true-colour picture has
            // a colour per pixel.
            const Picture p = samplePicture(size, count == 256 ? 200 : size * size);
            ASSERT_EQ(ModPalette::countColours(p.image, true), size == 16 ? 256 : count);
            const QString path = dir.filePath("round.ico");
            ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, count, path));
            ASSERT_TRUE(ModFileIO::isIconFile(path));
            ASSERT_EQ(ModFileIO::iconCount(path), 1);
            const IconLoadResult back = ModFileIO::loadSingleIcon(path);
            ASSERT_TRUE(back.ok());
            EXPECT_EQ(back.mask, p.mask);
            EXPECT_EQ(back.image, p.image);
        }
}

TEST(RoundTripTest, OneAndFourBitIconsKeepTheMaskButWriteBlackColours) {
    Picture p{Plane(16, 16, kBlack), Plane(16, 16, kBlack)};
    p.image.setPixel(0, 0, kWhite);
    p.image.setPixel(1, 0, 0x000080);
    p.mask.setPixel(2, 0, kWhite);
    p.image.setPixel(3, 0, 0xC0C0C0);
    p.mask.setPixel(3, 0, kWhite);
    for (int count : {2, 16}) {
        SCOPED_TRACE(count);
        const IconLoadResult back =
            IconReader::loadSingleIcon(IconWriter::iconBytes(p.mask, p.image, count));
        ASSERT_TRUE(back.ok());
        EXPECT_EQ(back.mask, p.mask);
        EXPECT_EQ(back.image, Plane(16, 16, kBlack));
    }
}

TEST(RoundTripTest, RewrittenMultiImageFileReadsBackItsEditedAndKeptImages) {
    QTemporaryDir dir;
    const Picture small = samplePicture(16, 50), large = samplePicture(48, 700);
    const QByteArray source = IconWriter::iconBytes(small.mask, small.image, 256);
    // Two images: build the second by rewriting the first file with itself as
    // the chosen image, then again to swap in the large picture.
    const QString one = dir.filePath("one.ico"), two = dir.filePath("two.ico");
    ASSERT_TRUE(ModFileIO::saveFile(one, source));
    ASSERT_TRUE(ModFileIO::rewriteMultiIcon(large.mask, large.image, -1, {0, 8, 48, 48}, one, two));
    EXPECT_EQ(ModFileIO::listIcons(two),
              (std::vector<IconListLine>{{"48 x 48 ... True Color", 24}}));
    const IconLoadResult back = ModFileIO::loadMultiIcon(two, {0, 24, 48, 48});
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(back.image, large.image);
    EXPECT_EQ(back.mask, large.mask);
}

TEST(RoundTripTest, FailedWritesLeaveExistingFilesAsTheyWere) {
    QTemporaryDir dir;
    const Picture p = samplePicture(32, 20);
    const QString path = dir.filePath("kept.ico");
    ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, 256, path));
    const QByteArray before = contents(path);

    EXPECT_FALSE(ModFileIO::writeIcon(Plane(), Plane(), 256, path));
    EXPECT_FALSE(ModFileIO::writeCursor(Plane(16, 16), Plane(32, 32), 2, 0, 0, path));
    EXPECT_FALSE(ModFileIO::writeBitmap(Plane(), -1, path));
    // Saving in place always fails, and the source stays whole.
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {0, 8, 32, 32}, path, QString()));
    // An unreadable source or an impossible choice writes nothing.
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {0, 8, 32, 32},
                                             dir.filePath("missing.ico"), path));
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {1, 8, 32, 32}, path, path));
    EXPECT_EQ(contents(path), before);

    EXPECT_FALSE(ModFileIO::writeIcon(p.mask, p.image, 256, dir.path()));
    EXPECT_FALSE(ModFileIO::writeIcon(p.mask, p.image, 256, dir.filePath("no/such/dir.ico")));
    EXPECT_FALSE(ModFileIO::writeIcon(p.mask, p.image, 256, QString()));
}

TEST(RoundTripTest, SaveAsOverTheMultiImageSourceItselfWorks) {
    QTemporaryDir dir;
    const Picture a = samplePicture(16, 30), b = samplePicture(32, 30);
    const QString path = dir.filePath("both.ico");
    ASSERT_TRUE(ModFileIO::writeIcon(a.mask, a.image, 256, path));
    ASSERT_TRUE(ModFileIO::rewriteMultiIcon(b.mask, b.image, 256, {0, 8, 32, 32}, path, path));
    const IconLoadResult back = ModFileIO::loadMultiIcon(path, {0, 8, 32, 32});
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(back.image, b.image);
}

} // namespace
