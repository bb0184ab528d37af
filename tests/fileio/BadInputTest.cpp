#include "IcoBuilder.h"

#include "fileio/IcoFile.h"
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

const char* name(LoadStatus s) {
    return s == LoadStatus::Ok ? "Ok" : s == LoadStatus::BadDimensions ? "BadSize" : "Failed";
}
const char* name(ReadFault f) {
    const char* names[] = {"", " Unreadable", " TooLarge", " OutOfBounds", " Unsupported"};
    return names[static_cast<int>(f)];
}

// What each reader makes of the bytes: header test, count, listing / single
// load / multi load of entry 0 as 8 bits, 16 x 16.
std::string readings(const QByteArray& bytes) {
    const IcoFile ico(bytes);
    const IconLoadResult single = ico.image(0);
    return std::string(ico.isIconFile() ? "icon " : "- ") + std::to_string(ico.count()) +
           (ico.listing() ? " listed / " : " - / ") + name(single.status) + name(single.fault) +
           " / " + name(ico.chosenImage({0, 8, 16, 16}).status);
}

TEST(BadInputTest, EveryReaderGivesATypedFailureForMalformedBytes) {
    const QByteArray good = twoImages();
    constexpr qint64 kInfo = 6 + 2 * 16; // the first image's BITMAPINFOHEADER
    const auto at = [&good](qint64 offset, qint64 value, int length) {
        return QByteArray(good).replace(offset, length, le(value, length));
    };
    const std::tuple<const char*, QByteArray, const char*> cases[] = {
        {"as built", good, "icon 2 listed / Ok / Ok"},
        {"empty", {}, "- 0 - / Failed OutOfBounds / Failed"},
        {"3 bytes", good.left(3), "- 0 - / Failed OutOfBounds / Failed"},
        {"cut in the entry", good.left(21), "- 2 - / Failed OutOfBounds / Failed"},
        {"cut in the rows", good.left(kInfo + 1164), "icon 2 - / Failed OutOfBounds / Failed"},
        {"cut in the last mask", good.chopped(1), "icon 2 listed / Ok / Ok"},
        {"count 0", at(4, 0, 2), "- 0 - / Ok / Failed"},
        {"count -32768", at(4, -32768, 2), "- 0 - / Ok / Failed"},
        {"count 32767", at(4, 32767, 2), "icon 32767 - / Ok / Ok"},
        {"offset past the end", at(18, 0x7FFFFFFF, 4), "icon 2 - / Failed OutOfBounds / Failed"},
        {"offset negative", at(18, -16, 4), "- 2 - / Failed OutOfBounds / Failed"},
        {"offset at last byte", at(18, good.size() - 1, 4),
         "icon 2 - / Failed OutOfBounds / Failed"},
        {"entry width 0", at(6, 0, 1), "- 2 listed / Ok / Ok"},
        {"cursor", at(2, 2, 2), "- 2 listed / Ok / Ok"},
        {"image width 0", at(kInfo + 4, 0, 4), "icon 2 listed / BadSize / Ok"},
        {"image height huge", at(kInfo + 8, 0x7FFFFFFE, 4), "icon 2 listed / BadSize / Ok"},
        {"header size huge", at(kInfo, 0x474E5089, 4), "icon 2 listed / Failed Unsupported / Ok"},
        {"compressed", at(kInfo + 16, 1, 4), "icon 2 listed / Failed Unsupported / Ok"},
        {"16 bits per pixel", at(kInfo + 14, 16, 2), "icon 2 listed / Failed Unsupported / Ok"},
    };
    for (const auto& [what, bytes, expected] : cases)
        EXPECT_EQ(readings(bytes), expected) << what;
}

TEST(BadInputTest, ChoicesOutsideTheDirectoryFailTheMultiLoad) {
    const QByteArray good = twoImages();
    for (const int index : {2, -1})
        EXPECT_EQ(ModFileIO::loadMessage(IcoFile(good).chosenImage({index, 8, 16, 16}), true),
                  "An unexpected error occurred while loading the icon resource.");
    // A 48 x 48 choice of a 16 x 16 entry runs past the file's end.
    EXPECT_EQ(IcoFile(good).chosenImage({1, 24, 48, 48}).fault, ReadFault::OutOfBounds);
}

TEST(BadInputTest, FilesThatCannotBeReadAreRefusedWithoutBlocking) {
    QTemporaryDir dir;
    const QString fifo = dir.filePath("pipe.ico"), dangling = dir.filePath("dangling.ico");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(dir.filePath("gone.ico"), dangling));
    ASSERT_TRUE(QDir(dir.path()).mkdir("folder.ico"));
    QFile huge(dir.filePath("huge.ico")); // a valid start, but larger than any icon file
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    huge.write(twoImages());
    ASSERT_TRUE(huge.resize(ModFileIO::maxFileBytes() + 1));
    huge.close();
    for (const QString& path :
         {dir.filePath("missing.ico"), dir.filePath("folder.ico"), fifo, dangling,
          QStringLiteral("/dev/zero"), QString(), huge.fileName()}) {
        SCOPED_TRACE(path.toStdString());
        const ReadFault fault =
            path == huge.fileName() ? ReadFault::TooLarge : ReadFault::Unreadable;
        const IcoFile ico = ModFileIO::readIconFile(path);
        EXPECT_EQ(ico.isIconFile(), fault == ReadFault::TooLarge);
        EXPECT_EQ(ico.count(), fault == ReadFault::TooLarge ? 2 : 0);
        EXPECT_FALSE(ico.listing());
        const IconLoadResult single = ico.image(0);
        EXPECT_EQ(single.fault, fault);
        EXPECT_EQ(ModFileIO::loadMessage(single, false),
                  "An unexpected error occurred while loading the icon.");
        EXPECT_EQ(ico.chosenImage({0, 8, 16, 16}).fault, fault);
    }
}

} // namespace
