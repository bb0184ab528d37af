#pragma once

#include "platform/Plane.h"

#include <QString>

// The icon being edited: a square picture of 16, 32 or 48 pixels held as a
// colour plane and a mask plane in the AND/XOR model of the icon formats.
//   mask black            -> opaque, shows the colour
//   mask white, colour 0  -> transparent (the "transparent pair")
//   mask white, colour C  -> inverting, shows background XOR C
class IconDocument {
  public:
    IconDocument();

    static int sizeForIndex(int sizeIndex); // 0, 1, 2 -> 16, 32, 48
    static int indexForSize(int size);      // 16, 32, 48 -> 0, 1, 2; -1 otherwise

    // Gives the document the size of sizeIndex and makes every pixel
    // transparent (colour black, mask white). The selection planes follow
    // the size.
    void resize(int sizeIndex);

    // Makes the area of a selection rectangle (x1, y1)-(x2, y2), in canvas
    // pixels, transparent in both planes: the icon pixels from x1 div zoom to
    // x2 div zoom - 1 across, both included, and the same down.
    void clearToTransparent(int x1, int y1, int x2, int y2);

    bool isTransparent(int x, int y) const;

    int size = 32;
    int maxIndex = 31;
    int zoom = 12;

    Plane PicImage;
    Plane PicMask;
    Plane PicSelImage;
    Plane PicSelMask;

    bool modified = false;
    bool hasFile = false;
    bool opening = false;
    QString filePath;
    QString fileTitle;
    // "Brevik - Untitled", or "Brevik - " and the file's name.
    QString windowTitle = QStringLiteral("Brevik - Untitled");
};
