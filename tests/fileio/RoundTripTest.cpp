// Files this program writes, read by a reader it did not write (Pillow,
// installed by scripts/install-deps.sh), and what a failed write leaves
// behind. Their headers are the writer test's.
#include "IcoBuilder.h"

#include "fileio/ModFileIO.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// What Pillow reads as RGBA: the size, then "r g b a" per pixel, rows top first.
std::string pillowPixels(const QString& path) {
    const char* script = "import sys; from PIL import Image\n"
                         "im = Image.open(sys.argv[1]).convert('RGBA'); print(*im.size)\n"
                         "for i in range(im.size[0] * im.size[1]): print(*im.getpixel((i % "
                         "im.size[0], i // im.size[0])))";
    QProcess python;
    python.start("/usr/bin/python3", {"-c", script, path});
    const bool finished = python.waitForStarted(10000) && python.waitForFinished(30000);
    const QString out = python.readAllStandardOutput() + python.readAllStandardError();
    EXPECT_TRUE(finished && python.exitStatus() == QProcess::NormalExit && python.exitCode() == 0)
        << "Pillow failed; run scripts/install-deps.sh: " << out.toStdString();
    return out.trimmed().toStdString();
}

// What a reader of the AND/XOR image as RGBA must see: the stored colour,
// alpha 0 where the mask is white. As text, a failure shows a diff.
std::string asRgba(const Plane& mask, const Plane& image) {
    QString text = QString::asprintf("%d %d", image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const Colour c = image.pixel(x, y);
            text += QString::asprintf("\n%d %d %d %d", redOf(c), greenOf(c), blueOf(c),
                                      mask.pixel(x, y) == kWhite ? 0 : 255);
        }
    return text.toStdString();
}

TEST(RoundTripTest, EveryIconOfEveryDepthAndSizeReadsInPillow) {
    QTemporaryDir dir;
    const QString ico = dir.filePath("i.ico");
    const std::pair<int, int> depths[] = {{-1, 24}, {256, 8}, {16, 4}, {2, 1}};
    for (const auto& [count, depth] : depths)
        for (int size : {48, 32, 16}) {
            SCOPED_TRACE(testing::Message() << size << " at " << depth << " bits");
            const TestIcon p(size, depth);
            // 1- and 4-bit files carry black tables, so their colours read black.
            const Plane colours = depth < 8 ? Plane(size, size, kBlack) : p.image;
            ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, count, ico));
            EXPECT_EQ(pillowPixels(ico), asRgba(p.mask, colours));
        }
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
