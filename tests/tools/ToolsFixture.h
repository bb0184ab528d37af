#pragma once

#include "support/EditorFixture.h"

#include <string>
#include <vector>

// The editor fixture with the vocabulary of the tool tests: icon pixels
// turned into canvas points, and whole planes compared against small
// pictures.
// "ab/cd" as the rows "ab" and "cd".
std::vector<std::string> rowsOf(const char* picture);

class ToolsFixture : public EditorFixture {
  protected:
    static constexpr Colour kRed = 0x0000FF;
    static constexpr Colour kBlue = 0xFF0000;
    static constexpr Colour kGreen = 0x00FF00;

    int zoom() const { return editor->doc.zoom; }
    // A canvas coordinate inside the cell of icon pixel p, offset pixels from
    // the cell's corner (1 is just inside the grid line, zoom - 1 the far
    // edge).
    int at(int p, int offset = 1) const { return p * zoom() + offset; }

    // Every pixel of the document opaque in colour c.
    void fillOpaque(Colour c) {
        editor->doc.PicImage.fill(c);
        editor->doc.PicMask.fill(kBlack);
        editor->refresh();
    }
    void setPixel(int x, int y, Colour colour, Colour mask) {
        editor->doc.PicImage.setPixel(x, y, colour);
        editor->doc.PicMask.setPixel(x, y, mask);
    }

    // Click with a button on the cell of icon pixel (x, y).
    void click(int button, int x, int y) {
        press(button, at(x), at(y));
        release(button, at(x), at(y));
    }

    // Compares both planes with a picture ('/' between rows) whose top-left
    // lies at (ox, oy): '.' stays `background` (opaque), 'L' and 'R' are
    // opaque in the two button colours, 'T' is the transparent pair. Pixels
    // outside the picture must keep the background.
    void expectPicture(const char* picture, int ox, int oy, Colour background, Colour left,
                       Colour right) const;
};
