#pragma once

#include "platform/Colour.h"

#include <vector>

// A rectangle of colour values: the stand-in for a memory bitmap selected into
// a drawing context. Every picture the program draws into is one of these.
class Plane {
  public:
    Plane() = default;
    Plane(int width, int height, Colour fill = kBlack);

    int width() const { return width_; }
    int height() const { return height_; }
    bool isEmpty() const { return width_ == 0 || height_ == 0; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    // Outside the plane a read gives kInvalidColour and a write does nothing,
    // as GetPixel and SetPixelV behave.
    Colour pixel(int x, int y) const;
    void setPixel(int x, int y, Colour c);

    void fill(Colour c);
    // New size, every pixel set to fill (the old contents are dropped).
    void reset(int width, int height, Colour fill);

    const std::vector<Colour>& pixels() const { return pixels_; }
    Colour* row(int y) { return pixels_.data() + static_cast<std::size_t>(y) * width_; }
    const Colour* row(int y) const { return pixels_.data() + static_cast<std::size_t>(y) * width_; }

    bool operator==(const Plane& other) const = default;

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<Colour> pixels_;
};
