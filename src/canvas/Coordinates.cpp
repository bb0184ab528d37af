#include "canvas/Coordinates.h"

QString Coordinates::twoDigits(int value) {
    if (value < 0)
        return QStringLiteral("-") + QString::number(-value).rightJustified(2, QLatin1Char('0'));
    return QString::number(value).rightJustified(2, QLatin1Char('0'));
}

QString Coordinates::pointText(int x, int y) {
    return twoDigits(x) + QStringLiteral(", ") + twoDigits(y);
}

QString Coordinates::sizeText(int width, int height) {
    return twoDigits(width) + QStringLiteral(" x ") + twoDigits(height);
}
