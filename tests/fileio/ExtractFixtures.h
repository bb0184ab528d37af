#pragma once

#include "fileio/IcoFile.h"
#include "platform/Raster.h"

// A one-image icon file written by the program's own writer, its pixels
// different for every seed and size, with transparent pixels: colourCount
// 2 gives 1 bit, anything above 256 24 bits.
inline QByteArray patternIcon(int size, int seed, int colourCount = 1000) {
    Plane mask(size, size, kBlack), image(size, size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            if ((x * 3 + y + seed) % 5 == 0) {
                mask.setPixel(x, y, kWhite);
                continue;
            }
            if (colourCount == 2)
                image.setPixel(x, y, (x + y * size + seed) % 3 ? kWhite : kBlack);
            else
                image.setPixel(x, y,
                               rgb((x * 7 + seed * 40) & 255, (y * 5 + seed * 13) & 255,
                                   (size + seed * 60) & 255));
        }
    return IcoFile::iconBytes(mask, image, colourCount);
}

// What the browser must show for a one-image file: its planes as the .ico
// reader decodes them, stretched pixel for pixel to 32 x 32.
inline IconLoadResult shownAs(const QByteArray& single) {
    IconLoadResult r = IcoFile(single).image(0);
    for (Plane* p : {&r.mask, &r.image}) {
        Plane out(32, 32);
        stretchBlt(out, 0, 0, 32, 32, *p, 0, 0, p->width(), p->height(), RasterOp::Copy);
        *p = out;
    }
    return r;
}
