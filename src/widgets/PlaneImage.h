#pragma once

#include "platform/Plane.h"

#include <QImage>

// The core's planes hold 0x00BBGGRR values; Qt's images hold 0xAARRGGBB.
namespace PlaneImage {
// The plane as an opaque image of the same size.
QImage toImage(const Plane& plane);
// The image as a plane; pixels that are not fully opaque are laid over white,
// so a picture with a transparent background arrives with a white one (which
// a plain Paste then treats as transparent again).
Plane toPlane(const QImage& image);
// One colour value as Qt's colour.
QRgb toRgb(Colour c);
} // namespace PlaneImage
