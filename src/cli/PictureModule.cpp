// The module brevik-cli loads to read pictures through Qt's image readers
// (see PictureReader.h). It needs neither a display nor a platform plugin.
#include "imaging/QtPngDecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

#include <vector>

extern "C" Q_DECL_EXPORT bool brevikReadPicture(const QByteArray& bytes, int& width, int& height,
                                                std::vector<quint32>& argb) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull())
        return false;
    width = image.width();
    height = image.height();
    argb.clear();
    argb.reserve(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        argb.insert(argb.end(), line, line + width);
    }
    return true;
}

// The editor's own PNG decoder, for the images inside icon groups.
extern "C" Q_DECL_EXPORT const PngDecoder* brevikPngDecoder() {
    static const QtPngDecoder decoder;
    return &decoder;
}
