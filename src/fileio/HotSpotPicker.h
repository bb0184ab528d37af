#pragma once

#include "fileio/FileDialogs.h"

#include <QString>

// What "Select Hot Spot" works out from the pointer over its copy of the
// zoomed canvas: the icon pixel under it, the chosen hot spot and the texts
// the dialog shows. Coordinates are the picture's own pixels.
class HotSpotPicker {
  public:
    // zoom: 24, 12 or 8; maxIndex: the icon's largest pixel index.
    HotSpotPicker(int zoom, int maxIndex) : zoom_(zoom), maxIndex_(maxIndex) {}

    // The pixel of a pointer coordinate: truncated, divided by the zoom, and
    // lowered to the largest index when beyond it.
    int pixelOf(double v) const;
    // The same, also raised to 0 (the pointer may leave the picture while a
    // button is held).
    int clampedPixelOf(double v) const;

    // A press: the left button (1) makes the pixel under the pointer the hot
    // spot; any other button changes nothing.
    void mouseDown(int button, double x, double y);
    // The live read-out for the pointer, "05, 11"; the hot spot stays.
    QString readout(double x, double y) const;

    HotSpot hotSpot() const { return hotSpot_; }
    // LblHotX and LblHotY: "00" until a pixel is chosen.
    QString hotXText() const;
    QString hotYText() const;

  private:
    int zoom_;
    int maxIndex_;
    HotSpot hotSpot_;
};
