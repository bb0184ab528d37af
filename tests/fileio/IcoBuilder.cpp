#include "IcoBuilder.h"

#include <algorithm>

StoredImage::StoredImage(int size_, int depth_, std::vector<Colour> table_)
    : size(size_), depth(depth_), table(std::move(table_)),
      colourRows(colourRowBytes() * size, '\0'), maskRows(maskRowBytes() * size, '\0') {}

void StoredImage::setIndex(int x, int y, int index) {
    const qint64 bit = static_cast<qint64>(x) * depth; // from the row's first bit
    char& byte = colourRows[(size - 1 - y) * colourRowBytes() + bit / 8];
    const int shift = 8 - depth - static_cast<int>(bit % 8), bits = (1 << depth) - 1;
    byte = static_cast<char>((byte & ~(bits << shift)) | (index & bits) << shift);
}

QByteArray StoredImage::data() const {
    IcoBuilder b;
    b.info(size, 2 * size, depth);
    for (Colour c : table)
        b.u8(blueOf(c)).u8(greenOf(c)).u8(redOf(c)).u8(0);
    return b.bytes + colourRows + maskRows;
}

QByteArray icoFile(const std::vector<StoredImage>& images, int type) {
    IcoBuilder b;
    b.header(type, static_cast<int>(images.size()));
    QByteArray data;
    for (const StoredImage& image : images) {
        const qint64 offset = 6 + 16 * static_cast<qint64>(images.size()) + data.size();
        b.entry(image.size, image.depth, image.data().size(), offset);
        data += image.data();
    }
    return b.bytes + data;
}

TestIcon::TestIcon(int size, int depth)
    : stored(size, depth), mask(size, size, kBlack), image(size, size) {
    const int entries = depth < 24 ? 1 << depth : 0;
    for (int i = 0; i < entries; ++i)
        stored.table.push_back(i == 0             ? kBlack
                               : i == entries - 1 ? kWhite
                                                  : rgb(i, 255 - i, 7 * i % 256));
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            set(x, y,
                entries ? stored.table[(x + 3 * y) % std::min(entries, 40)]
                        : rgb(5 * x + 3, 5 * y + 5, 100 + x + y));
    set(0, 0, kBlack, true);
    set(size - 1, 0, kBlack, true);
    set(5, 0, entries ? stored.table[entries / 2] : rgb(200, 10, 90), true);
    set(6, 0, kWhite, true);
}

void TestIcon::set(int x, int y, Colour c, bool masked) {
    image.setPixel(x, y, c);
    if (stored.depth == 24)
        stored.setColour(x, y, c);
    else
        stored.setIndex(x, y,
                        static_cast<int>(std::find(stored.table.begin(), stored.table.end(), c) -
                                         stored.table.begin()));
    if (masked) {
        stored.setTransparent(x, y);
        mask.setPixel(x, y, kWhite);
    }
}
