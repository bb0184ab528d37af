#pragma once

#include "tools/DrawingColour.h"

// One mouse gesture on the canvas, from button down to button up.
struct Gesture {
    int buttonIndex = 0;  // 0 left, 1 right: which ButtonColours entry is drawn with
    DrawingColour colour; // the pressed button's colour
    DrawingColour other;  // the other button's colour (the inside of Filled shapes)
    int startX = 0;       // canvas pixels of the mouse-down
    int startY = 0;
};

// A drawing tool: what it does at mouse-down, during the drag and at
// mouse-up. DrawingTools clears the redo history before begin and records the
// undo state after end; a tool only changes the planes and the views.
class CanvasTool {
  public:
    virtual ~CanvasTool() = default;
    virtual void begin(const Gesture& gesture) = 0;
    // (x, y) in canvas pixels, only while the button is down.
    virtual void move(const Gesture& gesture, int x, int y) = 0;
    virtual void end(const Gesture& gesture) = 0;
};
