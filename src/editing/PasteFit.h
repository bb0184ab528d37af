#pragma once

// The size a clipboard picture too large for the icon is shrunk to when the
// user keeps its aspect ("Shrink To Fit (Keep Aspect)").
struct PasteFit {
    int width = 0;
    int height = 0;

    // picture: the clipboard picture's size; icon: the icon's size.
    static PasteFit keepingAspect(int pictureWidth, int pictureHeight, int iconWidth,
                                  int iconHeight);
};
