#pragma once

#include "platform/Plane.h"

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

// One entry of the colour adjustment's work buffers.
struct ColourWork {
    std::int16_t red = 0;
    std::int16_t green = 0;
    std::int16_t blue = 0;
};

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
    // transparent (colour black, mask white). The selection planes and the
    // work plane follow the size.
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
    Plane PicCol;

    bool modified = false;
    bool hasFile = false;
    bool opening = false;
    QString filePath;
    QString fileTitle;

    std::array<std::vector<ColourWork>, 3> colourBuffers;
};
