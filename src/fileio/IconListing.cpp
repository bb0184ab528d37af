#include "fileio/IconListing.h"

#include "fileio/IconLayout.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

QString depthSuffix(int bitCount) {
    switch (bitCount) {
    case 1:
        return QStringLiteral(" ... Monochrome");
    case 4:
        return QStringLiteral(" ... 16 Color");
    case 8:
        return QStringLiteral(" ... 256 Color");
    default:
        return QStringLiteral(" ... True Color");
    }
}

// Every size a file can give fits an int; a longer run of digits stops
// growing here instead of overflowing.
constexpr double kNumberCeiling = 1e12;

// The leading number of a text as the listing dialog reads it: blanks are
// skipped, also between digits, one decimal point is taken, and the first
// other character ends it. The value goes into an integer as every real
// number does here, halves to even, so "15.5" gives 16.
int leadingNumber(const QString& text) {
    int i = 0;
    const auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == u' ' || text[i] == u'\t'))
            ++i;
    };
    skipBlanks();
    bool negative = false;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
        negative = text[i] == u'-';
        ++i;
    }
    double value = 0;
    double place = 1; // below 1 once the decimal point is passed
    for (skipBlanks(); i < text.size(); ++i, skipBlanks()) {
        if (text[i] == u'.' && place == 1) {
            place = 0.1;
        } else if (!text[i].isDigit()) {
            break;
        } else if (place < 1) {
            value += text[i].digitValue() * place;
            place /= 10;
        } else {
            value = std::min(value * 10 + text[i].digitValue(), kNumberCeiling);
        }
    }
    const double rounded = std::nearbyint(negative ? -value : value);
    return static_cast<int>(std::clamp(rounded, double(INT_MIN), double(INT_MAX)));
}

} // namespace

IconListLine IconListing::line(qint32 width, qint32 doubledHeight, int bitCount) {
    // The height is halved as a real number: an odd biHeight lists as "15.5".
    return {QString::number(width) + QStringLiteral(" x ") +
                QString::number(doubledHeight / 2.0, 'g', 12) + depthSuffix(bitCount),
            IconLayout::decoderDepth(bitCount)};
}

IconDescription IconListing::describe(int index, const IconListLine& line) {
    const qsizetype x = line.text.indexOf(u'x');
    // Without an "x" the height is read from the whole text.
    const QString afterX = x < 0 ? line.text : line.text.mid(x + 1);
    return {index, line.itemData, leadingNumber(line.text), leadingNumber(afterX)};
}
