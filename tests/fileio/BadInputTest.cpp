#include "IcoBuilder.h"

#include "fileio/IconReader.h"
#include "fileio/ModFileIO.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QByteArray twoImages() {
    return icoFile({StoredImage(16, 8, std::vector<Colour>(256, kWhite)), StoredImage(16, 24)});
}

QByteArray patched(QByteArray bytes, qint64 offset, const QByteArray& value) {
    return bytes.replace(offset, value.size(), value);
}

// The first image's BITMAPINFOHEADER starts after the two entries.
constexpr qint64 kInfo = 6 + 2 * 16;

TEST(BadInputTest, EveryReaderGivesATypedFailureForMalformedBytes) {
    const QByteArray good = twoImages();
    const auto u32 = [](qint64 v) { return IcoBuilder().u32(v).bytes; };
    const LoadStatus Ok = LoadStatus::Ok, Bad = LoadStatus::BadDimensions,
                     Failed = LoadStatus::Failed;
    const struct {
        const char* what;
        QByteArray bytes;
        bool isIcon;
        int count;
        bool listed;
        LoadStatus single;
        ReadFault singleFault;
        LoadStatus multi; // entry 0, 8 bits, 16 x 16
    } cases[] = {
        {"as built", good, true, 2, true, Ok, ReadFault::None, Ok},
        {"empty", QByteArray(), false, 0, false, Failed, ReadFault::OutOfBounds, Failed},
        {"3 bytes", good.left(3), false, 0, false, Failed, ReadFault::OutOfBounds, Failed},
        {"cut in the directory", good.left(20), false, 2, false, Failed, ReadFault::OutOfBounds,
         Failed},
        {"cut in the first image's rows", good.left(kInfo + 40 + 1024 + 100), true, 2, false,
         Failed, ReadFault::OutOfBounds, Failed},
        {"cut in the last image's mask", good.left(good.size() - 1), true, 2, true, Ok,
         ReadFault::None, Ok},
        {"count 0", patched(good, 4, QByteArray("\0\0", 2)), false, 0, false, Ok, ReadFault::None,
         Failed},
        {"count -32768", patched(good, 4, QByteArray("\0\x80", 2)), false, 0, false, Ok,
         ReadFault::None, Failed},
        {"count 32767 with two entries", patched(good, 4, "\xFF\x7F"), true, 32767, false, Ok,
         ReadFault::None, Ok},
        {"offset past the end", patched(good, 18, u32(0x7FFFFFFF)), true, 2, false, Failed,
         ReadFault::OutOfBounds, Failed},
        {"offset negative", patched(good, 18, u32(0xFFFFFFF0)), false, 2, false, Failed,
         ReadFault::OutOfBounds, Failed},
        {"offset at the last byte", patched(good, 18, u32(good.size() - 1)), true, 2, false, Failed,
         ReadFault::OutOfBounds, Failed},
        {"entry width 0", patched(good, 6, QByteArray(1, 0)), false, 2, true, Ok, ReadFault::None,
         Ok},
        {"cursor", patched(good, 2, "\2"), false, 2, true, Ok, ReadFault::None, Ok},
        {"image width 0", patched(good, kInfo + 4, u32(0)), true, 2, true, Bad, ReadFault::None,
         Ok},
        {"image height huge", patched(good, kInfo + 8, u32(0x7FFFFFFE)), true, 2, true, Bad,
         ReadFault::None, Ok},
        {"header size huge", patched(good, kInfo, u32(0x474E5089)), true, 2, true, Failed,
         ReadFault::Unsupported, Ok},
        {"header size 12", patched(good, kInfo, u32(12)), true, 2, true, Failed,
         ReadFault::Unsupported, Ok},
        {"compressed", patched(good, kInfo + 16, u32(1)), true, 2, true, Failed,
         ReadFault::Unsupported, Ok},
        {"16 bits per pixel", patched(good, kInfo + 14, "\x10"), true, 2, true, Failed,
         ReadFault::Unsupported, Ok},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(IconReader::isIconFile(c.bytes), c.isIcon);
        EXPECT_EQ(IconReader::iconCount(c.bytes), c.count);
        EXPECT_EQ(IconReader::listIcons(c.bytes).has_value(), c.listed);
        const IconLoadResult single = IconReader::loadSingleIcon(c.bytes);
        EXPECT_EQ(single.status, c.single);
        EXPECT_EQ(single.fault, c.singleFault);
        EXPECT_EQ(IconReader::loadMultiIcon(c.bytes, {0, 8, 16, 16}).status, c.multi);
    }
}

TEST(BadInputTest, ChoicesOutsideTheDirectoryFailTheMultiLoad) {
    const QByteArray good = twoImages();
    for (const IconDescription& d : {IconDescription{2, 24, 16, 16}, IconDescription{-1, 8, 16, 16},
                                     IconDescription{32767, 1, 16, 16}}) {
        SCOPED_TRACE(d.index);
        const IconLoadResult r = IconReader::loadMultiIcon(good, d);
        EXPECT_EQ(r.status, LoadStatus::Failed);
        EXPECT_EQ(ModFileIO::loadMessage(r, true),
                  "An unexpected error occurred while loading the icon resource.");
    }
    // A 48 x 48 choice of a 16 x 16 entry runs past the file's end.
    EXPECT_EQ(IconReader::loadMultiIcon(good, {1, 24, 48, 48}).fault, ReadFault::OutOfBounds);
}

TEST(BadInputTest, FilesThatCannotBeReadAreRefusedWithoutBlocking) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString fifo = dir.filePath("pipe.ico");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString dangling = dir.filePath("dangling.ico");
    ASSERT_TRUE(QFile::link(dir.filePath("gone.ico"), dangling));
    ASSERT_TRUE(QDir(dir.path()).mkdir("folder.ico"));
    // Valid at its start, but larger than any icon file.
    const QString huge = dir.filePath("huge.ico");
    {
        QFile f(huge);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(twoImages());
        ASSERT_TRUE(f.resize(ModFileIO::maxFileBytes() + 1));
    }
    const struct {
        QString path;
        ReadFault fault;
        bool headerReadable;
    } cases[] = {
        {dir.filePath("missing.ico"), ReadFault::Unreadable, false},
        {dir.filePath("folder.ico"), ReadFault::Unreadable, false},
        {fifo, ReadFault::Unreadable, false},
        {dangling, ReadFault::Unreadable, false},
        {"/dev/zero", ReadFault::Unreadable, false},
        {QString(), ReadFault::Unreadable, false},
        {huge, ReadFault::TooLarge, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.toStdString());
        EXPECT_EQ(ModFileIO::isIconFile(c.path), c.headerReadable);
        EXPECT_EQ(ModFileIO::iconCount(c.path), c.headerReadable ? 2 : 0);
        EXPECT_FALSE(ModFileIO::listIcons(c.path));
        const IconLoadResult single = ModFileIO::loadSingleIcon(c.path);
        EXPECT_EQ(single.status, LoadStatus::Failed);
        EXPECT_EQ(single.fault, c.fault);
        EXPECT_EQ(ModFileIO::loadMessage(single, false),
                  "An unexpected error occurred while loading the icon.");
        EXPECT_EQ(ModFileIO::loadMultiIcon(c.path, {0, 8, 16, 16}).fault, c.fault);
        ReadFault fault = ReadFault::None;
        EXPECT_FALSE(ModFileIO::readFile(c.path, &fault));
        EXPECT_EQ(fault, c.fault);
    }
}

} // namespace
