#include "widgets/PlaneImage.h"

QRgb PlaneImage::toRgb(Colour c) {
    return qRgb(redOf(c), greenOf(c), blueOf(c));
}

QImage PlaneImage::toImage(const Plane& plane) {
    QImage image(plane.width(), plane.height(), QImage::Format_RGB32);
    for (int y = 0; y < plane.height(); ++y) {
        const Colour* from = plane.row(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < plane.width(); ++x)
            to[x] = toRgb(from[x]);
    }
    return image;
}

Plane PlaneImage::toPlane(const QImage& image) {
    if (image.isNull())
        return {};
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    Plane plane(argb.width(), argb.height(), kWhite);
    for (int y = 0; y < argb.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        Colour* to = plane.row(y);
        for (int x = 0; x < argb.width(); ++x) {
            const QRgb p = from[x];
            const int a = qAlpha(p);
            auto over = [a](int channel) { return (channel * a + 255 * (255 - a) + 127) / 255; };
            to[x] = rgb(over(qRed(p)), over(qGreen(p)), over(qBlue(p)));
        }
    }
    return plane;
}
