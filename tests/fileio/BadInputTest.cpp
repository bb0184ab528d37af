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

// "Ok", "Failed" and the fault, or "BadSize" and the size the message names.
std::string outcome(const IconLoadResult& r) {
    const char* faults[] = {"", " Unreadable", " TooLarge", " OutOfBounds", " Unsupported"};
    if (r.status == LoadStatus::BadDimensions)
        return "BadSize " + std::to_string(r.width) + " x " + std::to_string(r.height);
    return r.ok() ? "Ok" : std::string("Failed") + faults[static_cast<int>(r.fault)];
}

// What each reader makes of the bytes: header test, count, listing / single
// load / multi load of entry 0 as 8 bits, 16 x 16.
std::string readings(const IcoFile& ico) {
    return std::string(ico.isIconFile() ? "icon " : "- ") + std::to_string(ico.count()) +
           (ico.listing() ? " listed / " : " - / ") + outcome(ico.image(0)) + " / " +
           (ico.chosenImage({0, 8, 16, 16}).ok() ? "Ok" : "Failed");
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
        {"offset 0", at(18, 0, 4), "- 2 listed / BadSize 269484034 x 32768 / Ok"},
        {"reserved 1", at(0, 1, 2), "- 2 listed / Ok / Ok"},
        {"cursor", at(2, 2, 2), "- 2 listed / Ok / Ok"},
        {"entry width 0", at(6, 0, 1), "- 2 listed / Ok / Ok"},
        {"entry width 24", at(6, 24, 1), "icon 2 listed / Ok / Ok"},
        {"entry height 0", at(7, 0, 1), "- 2 listed / Ok / Ok"},
        {"entry reserved 1", at(9, 1, 1), "- 2 listed / Ok / Ok"},
        {"bytes in resource 0", at(14, 0, 4), "- 2 listed / Ok / Ok"},
        {"bytes in resource negative", at(14, 0x80000000, 4), "- 2 listed / Ok / Ok"},
        {"image width 0", at(kInfo + 4, 0, 4), "icon 2 listed / BadSize 0 x 16 / Ok"},
        {"image 24 x 24", QByteArray(good).replace(kInfo + 4, 8, le(24, 4) + le(48, 4)),
         "icon 2 listed / BadSize 24 x 24 / Ok"},
        {"image half as high", at(kInfo + 8, 16, 4), "icon 2 listed / BadSize 16 x 8 / Ok"},
        {"image height -33", at(kInfo + 8, -33, 4), "icon 2 listed / BadSize 16 x -16 / Ok"},
        {"image height 33", at(kInfo + 8, 33, 4), "icon 2 listed / Ok / Ok"},
        {"image height huge", at(kInfo + 8, 0x7FFFFFFE, 4),
         "icon 2 listed / BadSize 16 x 1073741823 / Ok"},
        {"header size huge", at(kInfo, 0x474E5089, 4), "icon 2 listed / Failed Unsupported / Ok"},
        {"compressed", at(kInfo + 16, 1, 4), "icon 2 listed / Failed Unsupported / Ok"},
        {"16 bits per pixel", at(kInfo + 14, 16, 2), "icon 2 listed / Failed Unsupported / Ok"},
    };
    for (const auto& [what, bytes, expected] : cases)
        EXPECT_EQ(readings(IcoFile(bytes)), expected) << what;
}

TEST(BadInputTest, AChoiceTheFileCannotHoldFailsTheMultiLoadWithItsMessage) {
    const IcoFile two(twoImages());
    const QString failed = "An unexpected error occurred while loading the icon resource.";
    const QString odd = "Icon has dimensions which are incompatible with Sollent.\r\n\r\n";
    // The chosen size is checked first, on the choice alone.
    const std::tuple<IconDescription, ReadFault, QString> cases[] = {
        {{2, 8, 16, 16}, ReadFault::OutOfBounds, failed},
        {{-1, 8, 16, 16}, ReadFault::OutOfBounds, failed},
        {{1, 24, 48, 48}, ReadFault::OutOfBounds, failed}, // runs past the file's end
        {{0, 8, 24, 24}, ReadFault::None, odd + "24 x 24 pixels."},
        {{1, 24, 32, 16}, ReadFault::None, odd + "32 x 16 pixels."}};
    for (const auto& [chosen, fault, message] : cases) {
        const IconLoadResult r = two.chosenImage(chosen);
        EXPECT_EQ(std::pair(r.fault, ModFileIO::loadMessage(r, true)), std::pair(fault, message))
            << chosen.index << " " << chosen.width << " x " << chosen.height;
    }
    EXPECT_EQ(two.image(2).fault, ReadFault::OutOfBounds);
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
    for (const QString& path :
         {dir.filePath("missing.ico"), dir.filePath("folder.ico"), fifo, dangling,
          QStringLiteral("/dev/zero"), QString(), huge.fileName()}) {
        const IcoFile ico = ModFileIO::readIconFile(path);
        const bool tooLarge = path == huge.fileName(); // only its head is read
        EXPECT_EQ(readings(ico), tooLarge ? "icon 2 - / Failed TooLarge / Failed"
                                          : "- 0 - / Failed Unreadable / Failed")
            << path.toStdString();
        EXPECT_EQ(ico.chosenImage({0, 8, 16, 16}).fault,
                  tooLarge ? ReadFault::TooLarge : ReadFault::Unreadable);
    }
}

} // namespace
