#pragma once

#include "tools/CanvasTool.h"
#include "tools/ToolEnvironment.h"

// Sample: the pressed button takes the colour of the pixel under the pointer
// (following it while dragging), and the tool hands back to the previous
// drawing tool when the button is released.
class SampleTool : public CanvasTool {
  public:
    explicit SampleTool(ToolEnvironment& environment) : env_(environment) {}

    void begin(const Gesture& gesture) override;
    void move(const Gesture& gesture, int x, int y) override;
    void end(const Gesture& gesture) override;

  private:
    ToolEnvironment& env_;
};
