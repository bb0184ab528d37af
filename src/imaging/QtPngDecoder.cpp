#include "imaging/QtPngDecoder.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

std::optional<Plane> QtPngDecoder::decode(const QByteArray& png, int largestSide) const {
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    // The header's size is checked before any pixel is allocated.
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > largestSide || size.height() > largestSide)
        return std::nullopt;
    const QImage read = reader.read();
    if (read.isNull())
        return std::nullopt;
    const QImage image = read.convertToFormat(QImage::Format_ARGB32);
    Plane out(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        Colour* row = out.row(y);
        for (int x = 0; x < image.width(); ++x)
            row[x] = rgb(qRed(line[x]), qGreen(line[x]), qBlue(line[x])) |
                     static_cast<Colour>(qAlpha(line[x])) << 24;
    }
    return out;
}
