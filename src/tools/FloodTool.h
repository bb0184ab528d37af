#pragma once

#include "platform/Plane.h"
#include "tools/CanvasTool.h"
#include "tools/ToolEnvironment.h"

// Flood: fills, at mouse-down, the region around the pressed pixel whose
// pixels share both its mask and its colour, 4-connected in both planes.
class FloodTool : public CanvasTool {
  public:
    explicit FloodTool(ToolEnvironment& environment) : env_(environment) {}

    void begin(const Gesture& gesture) override;
    void move(const Gesture&, int, int) override {}
    void end(const Gesture&) override {}

    // Fills from icon pixel (px, py) with colour (the transparent pair when
    // colour.transparent), then redraws the views.
    void fill(int px, int py, const DrawingColour& colour);

    // Random attempts at a marker from the colour chart before the search
    // falls back to counting through the colour values.
    static constexpr int kMarkerAttempts = 1000;

  private:
    Colour findMarker() const;
    bool usedInIcon(Colour c) const;

    ToolEnvironment& env_;
};
