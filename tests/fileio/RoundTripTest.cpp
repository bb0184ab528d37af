// Files this program writes, read back by its own reader and by readers it
// did not write: icotool of icoutils and Pillow, both installed by
// scripts/install-deps.sh.
#include "IcoBuilder.h"

#include "fileio/ModFileIO.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// The output of a program; a failure says what it printed.
QString run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool finished = process.waitForStarted(10000) && process.waitForFinished(30000);
    const QString out = process.readAllStandardOutput() + process.readAllStandardError();
    EXPECT_TRUE(finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << program.toStdString() << " failed; run scripts/install-deps.sh: " << out.toStdString();
    return out.trimmed();
}

// What Pillow reads as RGBA: the size, then "r g b a" per pixel, rows top first.
std::string pillowPixels(const QString& path) {
    const char* script = "import sys; from PIL import Image\n"
                         "im = Image.open(sys.argv[1]).convert('RGBA'); print(*im.size)\n"
                         "for i in range(im.size[0] * im.size[1]): print(*im.getpixel((i % "
                         "im.size[0], i // im.size[0])))";
    return run("/usr/bin/python3", {"-c", script, path}).toStdString();
}

// What a reader of the AND/XOR image as RGBA must see: the stored colour,
// alpha 0 where the mask is white. As text, a failure shows a diff.
std::string asRgba(const Plane& mask, const Plane& image) {
    QStringList lines{QStringLiteral("%1 %2").arg(image.width()).arg(image.height())};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const Colour c = image.pixel(x, y);
            const int alpha = mask.pixel(x, y) == kWhite ? 0 : 255;
            lines << QStringLiteral("%1 %2 %3 %4")
                         .arg(redOf(c))
                         .arg(greenOf(c))
                         .arg(blueOf(c))
                         .arg(alpha);
        }
    return lines.join('\n').toStdString();
}

TEST(RoundTripTest, IconsOfEveryDepthAndSizeReadBackHereInIcotoolAndInPillow) {
    QTemporaryDir dir;
    const std::tuple<int, int, int> depths[] = {{2, 1, 2}, {16, 4, 16}, {256, 8, 256}, {-1, 24, 0}};
    for (int size : {16, 32, 48})
        for (const auto& [count, depth, paletteSize] : depths) {
            SCOPED_TRACE(testing::Message() << size << " at " << depth << " bits");
            const TestIcon p(size, depth);
            // 1- and 4-bit files carry black tables, so their colours read black.
            const Plane colours = depth < 8 ? Plane(size, size, kBlack) : p.image;
            const QString path = dir.filePath(QStringLiteral("%1-%2.ico").arg(size).arg(depth));
            ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, count, path));
            const IconLoadResult back = ModFileIO::loadSingleIcon(path);
            EXPECT_EQ(back.mask, p.mask);
            EXPECT_EQ(back.image, colours);
            EXPECT_EQ(
                run("icotool", {"-l", path}),
                QStringLiteral(
                    "--icon --index=1 --width=%1 --height=%1 --bit-depth=%2 --palette-size=%3")
                    .arg(size)
                    .arg(depth)
                    .arg(paletteSize));
            EXPECT_EQ(pillowPixels(path), asRgba(p.mask, colours));
        }
}

TEST(RoundTripTest, IcotoolReadsTheCursorsHotSpotAndARewrittenFile) {
    QTemporaryDir dir;
    const TestIcon p(32, 8), large(48, 24);
    const QString cursor = dir.filePath("hot.cur"), one = dir.filePath("one.ico"),
                  two = dir.filePath("two.ico");
    ASSERT_TRUE(ModFileIO::writeCursor(p.mask, p.image, 256, 5, 7, cursor));
    EXPECT_EQ(run("icotool", {"-l", cursor}),
              "--cursor --index=1 --width=32 --height=32 --bit-depth=8 "
              "--palette-size=256 --hotspot-x=5 --hotspot-y=7");
    ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, 16, one));
    ASSERT_TRUE(ModFileIO::rewriteMultiIcon(large.mask, large.image, -1, {0, 4, 48, 48}, one, two));
    EXPECT_EQ(run("icotool", {"-l", two}),
              "--icon --index=1 --width=48 --height=48 --bit-depth=24 --palette-size=0");
}

TEST(RoundTripTest, PillowReadsBitmapsWithTheirPaletteAsWritten) {
    QTemporaryDir dir;
    const QString path = dir.filePath("picture.bmp");
    const TestIcon p(32, 24);
    ASSERT_TRUE(ModFileIO::writeBitmap(p.image, -1, path));
    EXPECT_EQ(pillowPixels(path), asRgba(Plane(32, 32), p.image));

    // At 8 bits black goes to entry 0, which holds the first colour seen
    // (red), white to entry 255, which stays black, and red, missing from
    // entries 1 to 254, repeats the previous pixel (the last of the row below).
    const Colour red = rgb(255, 0, 0), green = rgb(0, 255, 0);
    Plane odd(16, 16, green), seen(16, 16, green);
    const Colour row[] = {red, kBlack, kWhite, red}, shown[] = {green, red, kBlack, kBlack};
    for (int x = 0; x < 4; ++x) {
        odd.setPixel(x, 0, row[x]);
        seen.setPixel(x, 0, shown[x]);
    }
    ASSERT_TRUE(ModFileIO::writeBitmap(odd, 256, path));
    EXPECT_EQ(pillowPixels(path), asRgba(Plane(16, 16), seen));
    // The 2- and 16-entry tables are black, so such bitmaps come out black.
    for (int count : {2, 16}) {
        ASSERT_TRUE(ModFileIO::writeBitmap(Plane(16, 16, kWhite), count, path));
        EXPECT_EQ(pillowPixels(path), asRgba(Plane(16, 16), Plane(16, 16, kBlack))) << count;
    }
}

QByteArray contents(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

TEST(RoundTripTest, FailedWritesLeaveExistingFilesAsTheyWere) {
    QTemporaryDir dir;
    const TestIcon p(32, 8), other(32, 4);
    const QString path = dir.filePath("kept.ico");
    ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, 256, path));
    const QByteArray before = contents(path);
    EXPECT_FALSE(ModFileIO::writeIcon(Plane(), Plane(), 256, path));
    EXPECT_FALSE(ModFileIO::writeCursor(Plane(16, 16), Plane(32, 32), 2, 0, 0, path));
    EXPECT_FALSE(ModFileIO::writeBitmap(Plane(), -1, path));
    // Saving a multi-image file in place always fails, and the source stays whole.
    EXPECT_FALSE(
        ModFileIO::rewriteMultiIcon(other.mask, other.image, 256, {0, 8, 32, 32}, path, {}));
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {0, 8, 32, 32},
                                             dir.filePath("gone.ico"), path));
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {1, 8, 32, 32}, path, path));
    EXPECT_EQ(contents(path), before);
    for (const QString& bad : {dir.path(), dir.filePath("no/such/dir.ico"), QString()})
        EXPECT_FALSE(ModFileIO::writeIcon(p.mask, p.image, 256, bad)) << bad.toStdString();

    // Save As onto the source itself reads the other images first.
    ASSERT_TRUE(
        ModFileIO::rewriteMultiIcon(other.mask, other.image, 256, {0, 8, 32, 32}, path, path));
    EXPECT_EQ(ModFileIO::loadMultiIcon(path, {0, 8, 32, 32}).image, other.image);
}

} // namespace
