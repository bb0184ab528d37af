#pragma once

#include "platform/Plane.h"

#include <array>
#include <vector>

// The working state of Adjust Colors: three tables of one (r, g, b) triple a
// pixel in row order (the starting colours, an accumulator of the spinner
// steps, and the result shown), the last value seen of each spinner, and the
// preview the dialog shows. The dialog works only on these, never on the
// document; Ok writes the result into the icon.
class ColourAdjustment {
  public:
    // The four spinners, brightness at the top.
    enum Spinner { Brightness, Red, Green, Blue };
    // A transparent or inverting pixel (mask not black) holds this in every
    // channel of the tables; no step can bring it into 0..255.
    static constexpr int kMarker = 1000;
    static constexpr int kStep = 5;

    // Fills the tables from the icon's planes; the preview starts as the
    // icon's actual-size preview shows it.
    ColourAdjustment(const Plane& image, const Plane& mask);

    // A spinner's change event with its new value: one step of 5 towards it,
    // whatever the distance, and nothing when it equals the last value seen.
    void spin(Spinner spinner, int value);
    // Back to the starting colours and all last values 0.
    void reset();
    // Writes the result of every opaque pixel into image.
    void apply(Plane& image) const;

    int lastValue(Spinner spinner) const { return last_[spinner]; }
    // The preview as a colour and a mask plane in the icon's pixel model.
    const Plane& shadeImage() const { return shadeImage_; }
    const Plane& shadeMask() const { return shadeMask_; }

  private:
    struct Triple {
        int red, green, blue;
    };

    static Colour colourOf(const Triple& t) { return rgb(t.red, t.green, t.blue); }
    // The opaque pixels of the preview from the result table.
    void drawResult();

    int width_;
    std::vector<Triple> start_, accumulator_, result_;
    std::array<int, 4> last_{};
    Plane shadeImage_, shadeMask_;
};
