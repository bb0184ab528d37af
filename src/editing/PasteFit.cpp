#include "editing/PasteFit.h"

#include <cmath>

PasteFit PasteFit::keepingAspect(int pictureWidth, int pictureHeight, int iconWidth,
                                 int iconHeight) {
    // Intended: the picture is shrunk in 10,000 equal single-precision steps of
    // its own size, not by one division, and only its larger side is tested
    // against the icon. The sizes it gives, float rounding included, are part
    // of how a paste looks, so the same picture pastes at the same size in
    // every version of the editor.
    float pw = static_cast<float>(pictureWidth);
    float ph = static_cast<float>(pictureHeight);
    const float stepW = pw / 10000.0f;
    const float stepH = ph / 10000.0f;
    // A step of zero would never get anywhere; such a picture has no extent to
    // shrink.
    if (stepW <= 0.0f || stepH <= 0.0f)
        return {pictureWidth < 1 ? 1 : pictureWidth, pictureHeight < 1 ? 1 : pictureHeight};
    if (pw >= ph) {
        do {
            pw -= stepW;
            ph -= stepH;
        } while (pw > static_cast<float>(iconWidth));
    } else {
        do {
            pw -= stepW;
            ph -= stepH;
        } while (ph > static_cast<float>(iconHeight));
    }
    if (ph < 1.0f)
        ph = 1.0f;
    if (pw < 1.0f)
        pw = 1.0f;
    // Halves go to the even neighbour (the default rounding mode).
    return {static_cast<int>(std::nearbyint(pw)), static_cast<int>(std::nearbyint(ph))};
}
