#include "document/IconDocument.h"

#include "platform/Shapes.h"

IconDocument::IconDocument() {
    resize(1);
}

int IconDocument::sizeForIndex(int sizeIndex) {
    switch (sizeIndex) {
    case 0:
        return 16;
    case 2:
        return 48;
    default:
        return 32;
    }
}

int IconDocument::indexForSize(int size) {
    switch (size) {
    case 16:
        return 0;
    case 32:
        return 1;
    case 48:
        return 2;
    default:
        return -1;
    }
}

void IconDocument::resize(int sizeIndex) {
    size = sizeForIndex(sizeIndex);
    zoom = 384 / size;
    maxIndex = size - 1;
    PicImage.reset(size, size, kBlack);
    PicMask.reset(size, size, kWhite);
    PicSelImage.reset(size, size, kBlack);
    PicSelMask.reset(size, size, kWhite);
}

void IconDocument::clearToTransparent(int x1, int y1, int x2, int y2) {
    const int left = x1 / zoom, top = y1 / zoom, right = x2 / zoom - 1, bottom = y2 / zoom - 1;
    fillBox(PicImage, left, top, right, bottom, kBlack);
    fillBox(PicMask, left, top, right, bottom, kWhite);
}

bool IconDocument::isTransparent(int x, int y) const {
    return PicMask.pixel(x, y) == kWhite && PicImage.pixel(x, y) == kBlack;
}
