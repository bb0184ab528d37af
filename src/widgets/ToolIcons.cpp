#include "widgets/ToolIcons.h"

#include "platform/Shapes.h"
#include "widgets/PlaneImage.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace {

const QColor kOutline(0, 0, 0);
const QColor kPencilBody(240, 192, 48);
const QColor kWood(230, 200, 150);
const QColor kMetal(150, 150, 150);
const QColor kRubber(240, 128, 128);
const QColor kSleeve(64, 96, 200);
const QColor kGlass(200, 230, 255);
const QColor kPaint(48, 96, 208);
const QColor kInside(128, 128, 128);

QImage blank(int size) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

// Long tools lie along the diagonal from the bottom-left corner (their tip)
// to the top-right one: local x runs from the tip towards the end, local y
// across the tool.
void alongDiagonal(QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(8, 8);
    p.rotate(-45);
    p.setPen(QPen(kOutline, 1.0));
}

void drawSelect(QPainter& p) {
    p.setPen(kOutline);
    p.drawLine(7, 0, 7, 4);
    p.drawLine(7, 10, 7, 14);
    p.drawLine(0, 7, 4, 7);
    p.drawLine(10, 7, 14, 7);
    // A dotted marquee in the lower right.
    for (int k = 9; k <= 15; k += 2) {
        p.drawPoint(k, 9);
        p.drawPoint(k, 15);
        p.drawPoint(9, k);
        p.drawPoint(15, k);
    }
}

void drawPencil(QPainter& p) {
    alongDiagonal(p);
    p.setBrush(kWood);
    p.drawPolygon(QPolygonF({{-9.8, 0}, {-5.5, -2.6}, {-5.5, 2.6}}));
    p.setBrush(kOutline);
    p.drawPolygon(QPolygonF({{-9.8, 0}, {-8.2, -1}, {-8.2, 1}}));
    p.setBrush(kPencilBody);
    p.drawRect(QRectF(-5.5, -2.6, 10, 5.2));
    p.setBrush(kMetal);
    p.drawRect(QRectF(4.5, -2.6, 1.8, 5.2));
    p.setBrush(kRubber);
    p.drawRect(QRectF(6.3, -2.6, 2.8, 5.2));
}

void drawErase(QPainter& p) {
    alongDiagonal(p);
    p.setBrush(kRubber);
    p.drawRect(QRectF(-8, -3.5, 7, 7));
    p.setBrush(kSleeve);
    p.drawRect(QRectF(-1, -3.5, 9, 7));
}

void drawSample(QPainter& p) {
    alongDiagonal(p);
    p.setBrush(kGlass);
    p.drawPolygon(QPolygonF({{-9.8, 0}, {-7, -1.3}, {3, -1.3}, {3, 1.3}, {-7, 1.3}}));
    p.setBrush(kMetal);
    p.drawRect(QRectF(2, -2.5, 1.5, 5));
    p.setBrush(kOutline);
    p.drawEllipse(QRectF(3.5, -2.6, 6, 5.2));
}

void drawFlood(QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(kOutline, 1.0));
    // The tipped pail.
    p.save();
    p.translate(9.5, 8);
    p.rotate(-40);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(-4.5, -4, 9, 9));
    p.setBrush(kPaint);
    p.drawRect(QRectF(-4.5, -4, 9, 2));
    p.restore();
    // The paint running out of it, ending in a drop at the tip.
    p.setPen(Qt::NoPen);
    p.setBrush(kPaint);
    p.drawPolygon(QPolygonF({{4.5, 4.0}, {6.5, 6.0}, {3.5, 12.0}, {1.5, 12.0}}));
    p.drawEllipse(QRectF(0.5, 10.5, 4, 5));
}

// The shape tools' pictures are drawn with the program's own figures, so each
// shows what its tool leaves on the icon.
QImage shapeImage(int tool) {
    constexpr Colour kClear = 0xFF00FF; // stands for "nothing here"
    Plane plane(ToolIcons::kIconSize, ToolIcons::kIconSize, kClear);
    const Pen pen{kBlack, 1, PenMode::Copy};
    const Colour inside = rgb(kInside.red(), kInside.green(), kInside.blue());
    switch (tool) {
    case 5:
        drawLine(plane, 2, 13, 14, 1, pen);
        break;
    case 6:
        drawBox(plane, 2, 3, 13, 12, pen);
        break;
    case 7:
        drawEllipse(plane, 1, 3, 15, 13, pen);
        break;
    case 8:
        fillBox(plane, 2, 3, 13, 12, kBlack);
        break;
    case 9:
        drawEllipse(plane, 1, 3, 15, 13, pen, kBlack);
        break;
    case 10:
        fillBox(plane, 2, 3, 13, 12, inside);
        drawBox(plane, 2, 3, 13, 12, pen);
        break;
    case 11:
        drawEllipse(plane, 1, 3, 15, 13, pen, inside);
        break;
    default:
        break;
    }
    QImage image = blank(ToolIcons::kIconSize);
    for (int y = 0; y < plane.height(); ++y)
        for (int x = 0; x < plane.width(); ++x)
            if (plane.pixel(x, y) != kClear)
                image.setPixel(x, y, PlaneImage::toRgb(plane.pixel(x, y)));
    return image;
}

QImage iconImage(int tool) {
    if (tool >= 5)
        return shapeImage(tool);
    QImage image = blank(ToolIcons::kIconSize);
    QPainter p(&image);
    switch (tool) {
    case 0:
        drawSelect(p);
        break;
    case 1:
        drawPencil(p);
        break;
    case 2:
        drawErase(p);
        break;
    case 3:
        drawSample(p);
        break;
    case 4:
        drawFlood(p);
        break;
    default:
        break;
    }
    return image;
}

// Every clear pixel next to a drawn one turns white.
QImage withRim(const QImage& icon) {
    QImage out = icon;
    auto solid = [&icon](int x, int y) {
        return icon.rect().contains(x, y) && qAlpha(icon.pixel(x, y)) >= 128;
    };
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x) {
            if (solid(x, y))
                continue;
            bool near = false;
            for (int dy = -1; dy <= 1 && !near; ++dy)
                for (int dx = -1; dx <= 1 && !near; ++dx)
                    near = solid(x + dx, y + dy);
            if (near)
                out.setPixel(x, y, qRgba(255, 255, 255, 255));
        }
    return out;
}

} // namespace

QString ToolIcons::toolName(int tool) {
    static const std::array<const char*, kToolCount> names = {"Select",
                                                              "Pencil",
                                                              "Erase",
                                                              "Sample",
                                                              "Flood",
                                                              "Line",
                                                              "Rectangle",
                                                              "Ellipse",
                                                              "Solid Rectangle",
                                                              "Solid Ellipse",
                                                              "Filled Rectangle",
                                                              "Filled Ellipse"};
    return tool >= 0 && tool < kToolCount ? QString::fromLatin1(names[tool]) : QString();
}

QPixmap ToolIcons::icon(int tool) {
    return QPixmap::fromImage(iconImage(tool));
}

QPoint ToolIcons::hotSpot(int tool) {
    switch (tool) {
    case 1:
    case 3:
        return {1, 14};
    case 2:
        return {3, 13};
    case 4:
        return {2, 14};
    default:
        return {7, 7};
    }
}

QCursor ToolIcons::cursor(int tool) {
    const QPoint tip = hotSpot(tool);
    return QCursor(QPixmap::fromImage(withRim(iconImage(tool))), tip.x(), tip.y());
}

QPixmap ToolIcons::pointerImage() {
    QImage image = blank(12);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(kOutline, 1.0));
    p.setBrush(Qt::white);
    p.drawPolygon(
        QPolygonF({{1.5, 0.5}, {1.5, 10.5}, {4, 8}, {6, 11.5}, {7.5, 10.5}, {5.7, 7.3}, {9, 7.3}}));
    return QPixmap::fromImage(image);
}

QPixmap ToolIcons::dragImage() {
    QImage image = blank(12);
    QPainter p(&image);
    p.setPen(kOutline);
    // A dotted start corner and an arrow to the far corner.
    p.drawPoint(0, 0);
    p.drawPoint(2, 0);
    p.drawPoint(0, 2);
    p.drawLine(2, 2, 10, 10);
    p.drawLine(10, 10, 10, 6);
    p.drawLine(10, 10, 6, 10);
    return QPixmap::fromImage(image);
}
