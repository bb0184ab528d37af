#pragma once

#include "tools/CanvasTool.h"
#include "tools/ToolEnvironment.h"

// Line, Rectangle and Ellipse in their outline, solid and filled forms. While
// the button is down only an inverting rubber band on the canvas follows the
// pointer; the planes get the figure at mouse-up.
class ShapeTool : public CanvasTool {
  public:
    enum class Figure { Line, Box, Ellipse };
    // Hollow: outline only. Solid: outline and inside in the drawing colour.
    // Filled: the inside in the other button's colour.
    enum class Inside { Hollow, Solid, Filled };

    ShapeTool(ToolEnvironment& environment, Figure figure, Inside inside)
        : env_(environment), figure_(figure), inside_(inside) {}

    void begin(const Gesture& gesture) override;
    void move(const Gesture& gesture, int x, int y) override;
    void end(const Gesture& gesture) override;

  private:
    void toggleRubberBand(const Gesture& gesture);
    void paintPlanes(const Gesture& gesture);

    ToolEnvironment& env_;
    Figure figure_;
    Inside inside_;
    int endX_ = 0, endY_ = 0;
    bool bandShown_ = false;
};
