#include "FileCommandsFixture.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

TestIcon::TestIcon(int size, int depth, std::vector<Colour> table)
    : stored(size, depth, table), mask(size, size, kBlack),
      image(size, size, table.empty() ? kBlack : table[0]) {}

void TestIcon::store(int x, int y, Colour c) {
    image.setPixel(x, y, c);
    if (stored.depth == 24) {
        stored.setColour(x, y, c);
        return;
    }
    const auto at = std::find(stored.table.begin(), stored.table.end(), c);
    ASSERT_NE(at, stored.table.end()) << hex(c) << " is not in the table";
    stored.setIndex(x, y, static_cast<int>(at - stored.table.begin()));
}

void TestIcon::opaque(int x, int y, Colour c) {
    store(x, y, c);
}

void TestIcon::transparent(int x, int y) {
    store(x, y, kBlack);
    stored.setTransparent(x, y);
    mask.setPixel(x, y, kWhite);
}

void TestIcon::inverting(int x, int y, Colour c) {
    store(x, y, c);
    stored.setTransparent(x, y);
    mask.setPixel(x, y, kWhite);
}

TestIcon manyColourIcon() {
    TestIcon icon(32, 24);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            icon.opaque(x, y, rgb(8 * x + 3, 8 * y + 5, 100 + x + y));
    icon.transparent(0, 0);
    icon.transparent(31, 0);
    icon.inverting(5, 0, rgb(200, 10, 90));
    icon.inverting(6, 0, kWhite);
    return icon;
}

TestIcon fortyColourIcon() {
    std::vector<Colour> table(256, kBlack);
    for (int i = 1; i < 255; ++i)
        table[i] = rgb(i, 255 - i, (7 * i) % 256);
    table[255] = kWhite;
    TestIcon icon(16, 8, table);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            icon.opaque(x, y, table[1 + (x + 3 * y) % 40]);
    icon.opaque(1, 1, kWhite);
    icon.opaque(2, 1, kBlack);
    icon.transparent(0, 15);
    icon.transparent(15, 15);
    icon.inverting(7, 8, table[30]);
    return icon;
}

TestIcon sixteenColourIcon(int size) {
    const std::vector<Colour> standard{0x000000, 0x000080, 0x0000FF, 0x008000, 0x008080, 0x00FF00,
                                       0x00FFFF, 0x800000, 0x800080, 0x808000, 0x808080, 0xC0C0C0,
                                       0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    TestIcon icon(size, 4, standard);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            icon.opaque(x, y, standard[(x + y) % 16]);
    icon.transparent(size - 1, 0);
    return icon;
}

QString FileCommandsFixture::writeFile(const QString& name, const QByteArray& bytes) {
    const QString full = path(name);
    QFile file(full);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return full;
}

QByteArray FileCommandsFixture::readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

void FileCommandsFixture::chooseNext(const QString& path) {
    dialogs.files.push_back(FileChoice{path, QFileInfo(path).fileName(), 1});
}

void FileCommandsFixture::openThroughDialog(const QString& path) {
    chooseNext(path);
    editor->files.open();
}

void FileCommandsFixture::edit(int x, int y, Colour c) {
    editor->doc.PicImage.setPixel(x, y, c);
    editor->doc.PicMask.setPixel(x, y, kBlack);
    editor->refresh();
    editor->recordEdit();
}

void FileCommandsFixture::expectPlanes(const Plane& mask, const Plane& image) const {
    const IconDocument& doc = editor->doc;
    ASSERT_EQ(doc.size, mask.width());
    for (int y = 0; y < doc.size; ++y)
        for (int x = 0; x < doc.size; ++x) {
            ASSERT_EQ(hex(doc.PicMask.pixel(x, y)), hex(mask.pixel(x, y))) << x << "," << y;
            ASSERT_EQ(hex(doc.PicImage.pixel(x, y)), hex(image.pixel(x, y))) << x << "," << y;
        }
}

void FileCommandsFixture::expectMessages(
    std::initializer_list<ScriptedDialogs::Message> expected) const {
    ASSERT_EQ(dialogs.messages.size(), expected.size());
    auto shown = dialogs.messages.begin();
    for (const auto& message : expected) {
        EXPECT_EQ(shown->title, message.title);
        EXPECT_EQ(shown->text, message.text);
        EXPECT_EQ(shown->icon, message.icon);
        ++shown;
    }
}

std::string FileCommandsFixture::documentState() const {
    const IconDocument& doc = editor->doc;
    return QStringLiteral("%1 | %2 | %3 | modified %4 | file %5")
        .arg(editor->windowTitle, doc.filePath, doc.fileTitle)
        .arg(doc.modified)
        .arg(doc.hasFile)
        .toStdString();
}

ScriptedDialogs::Message brevikError(const QString& text) {
    return {QStringLiteral("Brevik - Error"), text, MessageIcon::Exclamation};
}

ScriptedDialogs::Message sollentError(const QString& text) {
    return {QStringLiteral("Sollent - Error"), text, MessageIcon::Exclamation};
}

std::uint16_t u16At(const QByteArray& bytes, int offset) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[offset]) |
                                      static_cast<unsigned char>(bytes[offset + 1]) << 8);
}

std::uint32_t u32At(const QByteArray& bytes, int offset) {
    return u16At(bytes, offset) | static_cast<std::uint32_t>(u16At(bytes, offset + 2)) << 16;
}

Plane bitmapPixels(const QByteArray& bytes) {
    const int width = static_cast<int>(u32At(bytes, 18));
    const int height = static_cast<int>(u32At(bytes, 22));
    const int start = static_cast<int>(u32At(bytes, 10));
    const int rowBytes = (3 * width + 3) / 4 * 4;
    Plane plane(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int at = start + (height - 1 - y) * rowBytes + 3 * x;
            plane.setPixel(x, y,
                           rgb(static_cast<unsigned char>(bytes[at + 2]),
                               static_cast<unsigned char>(bytes[at + 1]),
                               static_cast<unsigned char>(bytes[at])));
        }
    return plane;
}
