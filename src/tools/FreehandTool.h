#pragma once

#include "tools/CanvasTool.h"
#include "tools/ToolEnvironment.h"

// Pencil and Erase: every mouse position paints the one pixel under it,
// straight into the planes, the canvas cell and the preview, so no full
// redraw is needed while drawing. Erase differs only in its drawing colour,
// which DrawingTools makes the transparent pair.
class FreehandTool : public CanvasTool {
  public:
    explicit FreehandTool(ToolEnvironment& environment) : env_(environment) {}

    void begin(const Gesture& gesture) override;
    void move(const Gesture& gesture, int x, int y) override;
    void end(const Gesture& gesture) override;

  private:
    ToolEnvironment& env_;
};
