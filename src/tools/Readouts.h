#pragma once

#include <QString>

// The two read-out lines beside ImgXY and ImgToXY: the pointer's pixel, and
// the drag's start or size.
struct Readouts {
    QString xy;
    QString toXY;
};
