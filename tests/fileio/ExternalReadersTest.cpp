// Files this program writes, read by readers it did not write: icotool of
// icoutils and Pillow, both installed by scripts/install-deps.sh.
#include "fileio/IconWriter.h"
#include "fileio/ModFileIO.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr const char* kPython = "/usr/bin/python3";

// Prints the width and height, then one "r g b a" line per pixel, rows top
// first.
constexpr const char* kPixelsScript = R"(
import sys
from PIL import Image
im = Image.open(sys.argv[1])
im.load()
print(im.size[0], im.size[1])
rgba = im.convert("RGBA")
for y in range(im.size[1]):
    for x in range(im.size[0]):
        print(*rgba.getpixel((x, y)))
)";

struct Output {
    bool ran = false;
    QString text;
};

Output run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted(10000) || !process.waitForFinished(30000))
        return {};
    const QString out = QString::fromLocal8Bit(process.readAllStandardOutput());
    const QString err = QString::fromLocal8Bit(process.readAllStandardError());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {false, out + err};
    return {true, out};
}

// The first line of `icotool -l`, or a failure that says what to install.
QString icotoolListing(const QString& path) {
    const Output out = run("icotool", {"-l", path});
    EXPECT_TRUE(out.ran) << "icotool failed or is missing; run scripts/install-deps.sh "
                            "(package icoutils): "
                         << out.text.toStdString();
    return out.text.trimmed();
}

struct Rgba {
    int r, g, b, a;
    bool operator==(const Rgba&) const = default;
};

std::vector<Rgba> pillowPixels(const QString& path, int expectedSize) {
    const Output out = run(kPython, {"-c", kPixelsScript, path});
    EXPECT_TRUE(out.ran) << "Pillow could not read " << path.toStdString()
                         << "; run scripts/install-deps.sh (package python3-pil): "
                         << out.text.toStdString();
    const QStringList lines = out.text.split('\n', Qt::SkipEmptyParts);
    if (lines.isEmpty() || lines.front() != QStringLiteral("%1 %1").arg(expectedSize)) {
        ADD_FAILURE() << "Pillow gives the size "
                      << (lines.isEmpty() ? "" : lines[0].toStdString());
        return {};
    }
    std::vector<Rgba> pixels;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QStringList v = lines[i].split(' ');
        if (v.size() == 4)
            pixels.push_back({v[0].toInt(), v[1].toInt(), v[2].toInt(), v[3].toInt()});
    }
    return pixels;
}

struct Picture {
    Plane mask, image;
};

// Opaque colours, one transparent and one inverting pixel.
Picture picture(int size, int colours) {
    Picture p{Plane(size, size, kBlack), Plane(size, size, kBlack)};
    for (int i = 0; i < size * size; ++i)
        p.image.setPixel(i % size, i / size, rgb(i % colours, 40 + i % colours / 256, 90));
    p.mask.setPixel(1, 0, kWhite);
    p.image.setPixel(1, 0, kBlack);
    p.mask.setPixel(2, 0, kWhite);
    p.image.setPixel(2, 0, rgb(10, 20, 30));
    return p;
}

// What a reader of the AND/XOR image as RGBA sees: the stored colour, alpha
// 0 where the mask is white.
Rgba asRgba(const Picture& p, int x, int y, bool blackColours) {
    const Colour c = blackColours ? kBlack : p.image.pixel(x, y);
    return {redOf(c), greenOf(c), blueOf(c), p.mask.pixel(x, y) == kWhite ? 0 : 255};
}

TEST(ExternalReadersTest, IcotoolAndPillowReadIconsOfEveryDepthAndSize) {
    QTemporaryDir dir;
    const struct {
        int count, depth, paletteSize;
    } depths[] = {{2, 1, 2}, {16, 4, 16}, {256, 8, 256}, {-1, 24, 0}};
    for (int size : {16, 32, 48})
        for (const auto& d : depths) {
            SCOPED_TRACE(testing::Message() << size << " at " << d.depth << " bits");
            const Picture p = picture(size, d.depth == 8 ? 200 : 100000);
            const QString path = dir.filePath(QStringLiteral("%1-%2.ico").arg(size).arg(d.depth));
            ASSERT_TRUE(ModFileIO::writeIcon(p.mask, p.image, d.count, path));
            EXPECT_EQ(icotoolListing(path),
                      QStringLiteral("--icon --index=1 --width=%1 --height=%1 --bit-depth=%2 "
                                     "--palette-size=%3")
                          .arg(size)
                          .arg(d.depth)
                          .arg(d.paletteSize));
            const std::vector<Rgba> pixels = pillowPixels(path, size);
            ASSERT_EQ(pixels.size(), static_cast<std::size_t>(size * size));
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    ASSERT_EQ(pixels[y * size + x], asRgba(p, x, y, d.depth < 8)) << x << "," << y;
        }
}

TEST(ExternalReadersTest, IcotoolReadsTheCursorsHotSpot) {
    QTemporaryDir dir;
    const Picture p = picture(32, 200);
    const QString path = dir.filePath("hot.cur");
    ASSERT_TRUE(ModFileIO::writeCursor(p.mask, p.image, 256, 5, 7, path));
    EXPECT_EQ(icotoolListing(path), "--cursor --index=1 --width=32 --height=32 --bit-depth=8 "
                                    "--palette-size=256 --hotspot-x=5 --hotspot-y=7");
}

TEST(ExternalReadersTest, IcotoolListsEveryImageOfARewrittenMultiImageFile) {
    QTemporaryDir dir;
    const Picture small = picture(16, 2), large = picture(48, 100000);
    const QString one = dir.filePath("one.ico"), two = dir.filePath("two.ico");
    ASSERT_TRUE(ModFileIO::writeIcon(small.mask, small.image, 16, one));
    ASSERT_TRUE(ModFileIO::rewriteMultiIcon(large.mask, large.image, -1, {0, 4, 48, 48}, one, two));
    EXPECT_EQ(icotoolListing(two),
              "--icon --index=1 --width=48 --height=48 --bit-depth=24 --palette-size=0");
}

TEST(ExternalReadersTest, PillowReadsBitmapsWithTheirPaletteAsWritten) {
    QTemporaryDir dir;
    const Picture p = picture(32, 100000);
    const QString path = dir.filePath("true.bmp");
    ASSERT_TRUE(ModFileIO::writeBitmap(p.image, -1, path));
    const std::vector<Rgba> pixels = pillowPixels(path, 32);
    ASSERT_EQ(pixels.size(), 32u * 32u);
    for (int i = 0; i < 32 * 32; ++i)
        ASSERT_EQ(pixels[i], asRgba({Plane(32, 32, kBlack), p.image}, i % 32, i / 32, false)) << i;

    // At 8 bits the palette starts with the first colour seen (red here), but
    // black still goes to entry 0 and white to entry 255, which stays black;
    // red, missing from entries 1 to 254, repeats the previous pixel.
    const Colour red = rgb(255, 0, 0), green = rgb(0, 255, 0);
    Plane odd(16, 16, green);
    odd.setPixel(0, 0, red);
    odd.setPixel(1, 0, kBlack);
    odd.setPixel(2, 0, kWhite);
    odd.setPixel(3, 0, red);
    const QString oddPath = dir.filePath("odd.bmp");
    ASSERT_TRUE(ModFileIO::writeBitmap(odd, 256, oddPath));
    const std::vector<Rgba> seen = pillowPixels(oddPath, 16);
    ASSERT_EQ(seen.size(), 256u);
    const Rgba G{0, 255, 0, 255}, R{255, 0, 0, 255}, K{0, 0, 0, 255};
    EXPECT_EQ(std::vector<Rgba>(seen.begin(), seen.begin() + 5),
              (std::vector<Rgba>{G, R, K, K, G}));
    EXPECT_EQ(seen[255], G);

    // The 2- and 16-entry tables are black, so such bitmaps come out black.
    for (int count : {2, 16}) {
        Plane standard(16, 16, kWhite);
        standard.setPixel(4, 4, 0x000080);
        const QString smallPath = dir.filePath(QStringLiteral("%1.bmp").arg(count));
        ASSERT_TRUE(ModFileIO::writeBitmap(standard, count, smallPath));
        EXPECT_EQ(pillowPixels(smallPath, 16), std::vector<Rgba>(256, K));
    }
}

} // namespace
