#pragma once

#include "support/EditorFixture.h"

#include <string>
#include <vector>

// The editor fixture with the vocabulary of the tool tests: icon pixels as
// canvas points, and both planes as small pictures, '/' between rows, in
// letters: 'k' black, 'g' green, 'r' red, 'b' blue (all opaque), 'i'
// inverting red, 'T' transparent, '.' the picture's background letter.
class ToolsFixture : public EditorFixture {
  protected:
    static constexpr Colour kRed = 0x0000FF;
    static constexpr Colour kBlue = 0xFF0000;
    static constexpr Colour kGreen = 0x00FF00;

    int zoom() const { return editor->doc.zoom; }
    // A canvas coordinate inside the cell of icon pixel p, offset pixels from
    // the cell's corner (1 is just inside the grid line, zoom - 1 the far edge).
    int at(int p, int offset = 1) const { return p * zoom() + offset; }
    // Click with a button on the cell of icon pixel (x, y).
    void click(int button, int x, int y) {
        press(button, at(x), at(y));
        release(button, at(x), at(y));
    }
    void setColours(Colour left, Colour right) {
        editor->colours.value = {static_cast<std::int32_t>(left), static_cast<std::int32_t>(right)};
    }

    // Paints the whole icon in `background`, then the picture at (0, 0).
    void draw(const char* picture, char background);
    // The w x h block at (ox, oy) in letters.
    std::string picture(int ox, int oy, int w, int h, char background) const;
    // The block at (ox, oy) shows the picture and every pixel outside it the
    // background.
    void expectPicture(const char* picture, int ox, int oy, char background) const;
    // Canvas and preview show what a full redraw of the planes would.
    void expectViewsShowTheDocument() const;
};
