#include "IcoBuilder.h"

IcoBuilder& IcoBuilder::u8(int v) {
    bytes.append(static_cast<char>(v & 0xFF));
    return *this;
}
IcoBuilder& IcoBuilder::u16(int v) {
    return u8(v).u8(v >> 8);
}
IcoBuilder& IcoBuilder::u32(qint64 v) {
    return u16(static_cast<int>(v & 0xFFFF)).u16(static_cast<int>((v >> 16) & 0xFFFF));
}

IcoBuilder& IcoBuilder::header(int reserved, int type, int count) {
    return u16(reserved).u16(type).u16(count);
}

IcoBuilder& IcoBuilder::entry(const Entry& e) {
    return u8(e.width)
        .u8(e.height)
        .u8(e.colourCount)
        .u8(e.reserved)
        .u16(e.planes)
        .u16(e.bitCount)
        .u32(e.bytesInRes)
        .u32(e.imageOffset);
}

IcoBuilder& IcoBuilder::info(const Info& i) {
    return u32(i.size)
        .u32(i.width)
        .u32(i.height)
        .u16(1)
        .u16(i.bitCount)
        .u32(i.compression)
        .u32(0)
        .u32(0)
        .u32(0)
        .u32(i.coloursUsed)
        .u32(0);
}

IcoBuilder& IcoBuilder::table(const std::vector<Colour>& colours) {
    for (Colour c : colours)
        u8(blueOf(c)).u8(greenOf(c)).u8(redOf(c)).u8(0);
    return *this;
}

IcoBuilder& IcoBuilder::fill(qint64 count, int byte) {
    bytes.append(QByteArray(count, static_cast<char>(byte)));
    return *this;
}

IcoBuilder& IcoBuilder::append(const QByteArray& more) {
    bytes.append(more);
    return *this;
}

StoredImage::StoredImage(int size_, int depth_, std::vector<Colour> table_)
    : size(size_), depth(depth_), table(std::move(table_)) {
    colourRows = QByteArray(colourRowBytes() * size, '\0');
    maskRows = QByteArray(maskRowBytes() * size, '\0');
}

qint64 StoredImage::colourRowBytes() const {
    return (size * depth + 31) / 32 * 4;
}
qint64 StoredImage::maskRowBytes() const {
    return (size + 31) / 32 * 4;
}

void StoredImage::setIndex(int x, int y, int index) {
    const qint64 row = (size - 1 - y) * colourRowBytes();
    const qint64 bit = static_cast<qint64>(x) * depth; // from the row's first bit
    char& byte = colourRows[row + bit / 8];
    const int shift = 8 - depth - static_cast<int>(bit % 8);
    const int bits = (1 << depth) - 1;
    byte = static_cast<char>((byte & ~(bits << shift)) | (index & bits) << shift);
}

void StoredImage::setColour(int x, int y, Colour c) {
    const qint64 at = (size - 1 - y) * colourRowBytes() + static_cast<qint64>(x) * (depth / 8);
    colourRows[at] = static_cast<char>(blueOf(c));
    colourRows[at + 1] = static_cast<char>(greenOf(c));
    colourRows[at + 2] = static_cast<char>(redOf(c));
}

void StoredImage::setTransparent(int x, int y) {
    char& byte = maskRows[(size - 1 - y) * maskRowBytes() + x / 8];
    byte = static_cast<char>(byte | 0x80 >> (x % 8));
}

QByteArray StoredImage::data() const {
    IcoBuilder b;
    b.info({40, size, 2 * size, depth, 0, 0}).table(table);
    return b.bytes + colourRows + maskRows;
}

QByteArray icoFile(const std::vector<StoredImage>& images, int type) {
    IcoBuilder b;
    const int count = static_cast<int>(images.size());
    b.header(0, type, count);
    qint64 offset = 6 + 16 * count;
    for (const StoredImage& image : images) {
        const qint64 length = image.data().size();
        b.entry({image.size, image.size, 0, 0, 1, image.depth, length, offset});
        offset += length;
    }
    for (const StoredImage& image : images)
        b.append(image.data());
    return b.bytes;
}
