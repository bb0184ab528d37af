// Files this program writes, read back by its own reader and by readers it
// did not write: icotool of icoutils and Pillow, both installed by
// scripts/install-deps.sh.
#include "IcoBuilder.h"

#include "fileio/ModFileIO.h"
#include "fileio/MultiIconResource.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

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

// The first ten also fill the slots of a multi-icon resource, which lists
// the deepest and largest first; the last two find it full.
TEST(RoundTripTest, IconsCursorsAndMultiIconsOfEveryDepthAndSizeReadInIcotoolAndInPillow) {
    QTemporaryDir dir;
    const QString ico = dir.filePath("i.ico"), cur = dir.filePath("c.cur"),
                  multi = dir.filePath("m.ico");
    MultiIconResource resource;
    QString slotLines;
    const std::tuple<int, int, int> depths[] = {{-1, 24, 0}, {256, 8, 256}, {16, 4, 16}, {2, 1, 2}};
    for (const auto& [count, depth, paletteSize] : depths)
        for (int size : {48, 32, 16}) {
            SCOPED_TRACE(testing::Message() << size << " at " << depth << " bits");
            const TestIcon p(size, depth);
            // 1- and 4-bit files carry black tables, so their colours read black.
            const Plane colours = depth < 8 ? Plane(size, size, kBlack) : p.image;
            const QString listed =
                QStringLiteral("--width=%1 --height=%1 --bit-depth=%2 --palette-size=%3")
                    .arg(size)
                    .arg(depth)
                    .arg(paletteSize);
            ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, count, ico));
            ASSERT_TRUE(ModFileIO::writeCursor(p.mask, p.image, count, 5, 7, cur));
            EXPECT_EQ(run("icotool", {"-l", ico}), "--icon --index=1 " + listed);
            EXPECT_EQ(run("icotool", {"-l", cur}),
                      "--cursor --index=1 " + listed + " --hotspot-x=5 --hotspot-y=7");
            EXPECT_EQ(pillowPixels(ico), asRgba(p.mask, colours));
            if (resource.add(*ModFileIO::readFile(ico)).slot >= 0)
                slotLines +=
                    QStringLiteral("\n--icon --index=%1 ").arg(resource.filledCount()) + listed;
        }
    ASSERT_TRUE(ModFileIO::saveFile(multi, resource.toBytes()));
    EXPECT_EQ(("\n" + run("icotool", {"-l", multi})).toStdString(), slotLines.toStdString());
}

TEST(RoundTripTest, PillowReadsBitmapsAsWritten) {
    QTemporaryDir dir;
    const QString path = dir.filePath("picture.bmp");
    const TestIcon p(32, 24);
    ASSERT_TRUE(ModFileIO::writeBitmap(p.image, -1, path));
    EXPECT_EQ(pillowPixels(path), asRgba(Plane(32, 32), p.image));
    // The 16-entry table is black, so such bitmaps come out black.
    ASSERT_TRUE(ModFileIO::writeBitmap(Plane(16, 16, kWhite), 16, path));
    EXPECT_EQ(pillowPixels(path), asRgba(Plane(16, 16), Plane(16, 16, kBlack)));
}

TEST(RoundTripTest, FailedWritesLeaveTheFileAndSaveAsOntoTheSourceReadsItFirst) {
    QTemporaryDir dir;
    const TestIcon p(32, 8), other(32, 4);
    const QString path = dir.filePath("kept.ico");
    ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, 256, path));
    EXPECT_FALSE(ModFileIO::writeIcon(Plane(), Plane(), 256, path));
    EXPECT_FALSE(ModFileIO::writeBitmap(Plane(), -1, path));
    EXPECT_FALSE(ModFileIO::rewriteMultiIcon(p.mask, p.image, 2, {1, 8, 32, 32}, path, path));
    EXPECT_FALSE(ModFileIO::writeIcon(p.mask, p.image, 256, dir.path()));
    EXPECT_EQ(ModFileIO::readIconFile(path).image(0).image, p.image);
    ASSERT_TRUE(
        ModFileIO::rewriteMultiIcon(other.mask, other.image, 256, {0, 8, 32, 32}, path, path));
    EXPECT_EQ(ModFileIO::readIconFile(path).chosenImage({0, 8, 32, 32}).image, other.image);
}

} // namespace
