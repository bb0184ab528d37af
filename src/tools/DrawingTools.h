#pragma once

#include "tools/CanvasTool.h"
#include "tools/FloodTool.h"
#include "tools/FreehandTool.h"
#include "tools/SampleTool.h"
#include "tools/SelectTool.h"
#include "tools/ShapeTool.h"
#include "tools/ToolEnvironment.h"

#include <array>

class EditContext;
struct Readouts;

// The tool buttons OptTool 0..11 and what the mouse does on the canvas with
// each of them. The steps every gesture shares (which buttons count, the redo
// history, the drawing colour, the read-out, the undo record) live here; the
// tools do the rest.
class DrawingTools {
  public:
    enum Tool {
        Select = 0,
        Pencil,
        Erase,
        Sample,
        Flood,
        Line,
        Rectangle,
        Ellipse,
        SolidRectangle,
        SolidEllipse,
        FilledRectangle,
        FilledEllipse,
        ToolCount
    };

    DrawingTools(EditContext& context, ButtonColours& colours, const Plane& colourChart,
                 Readouts& readouts);

    // A click on OptTool(index).
    void chooseTool(int index);
    // New's reset: Pencil, with Pencil as the previous tool. A gesture still
    // in progress is dropped.
    void resetToPencil();

    // The canvas mouse, in canvas pixels; button 1 is left, 2 right, others
    // are ignored. For mouseMove, button 0 means no button is down.
    void mouseDown(int button, int x, int y);
    void mouseMove(int button, int x, int y);
    void mouseUp(int button, int x, int y);

    // Whether a gesture is in progress (a button went down on the canvas and
    // has not come up yet).
    bool drawing() const { return pressedButton_ != 0; }

    int currentTool = Pencil;
    int previousTool = Pencil;
    // Whose OptTool icon the canvas shows as its mouse pointer.
    int canvasCursorTool = Pencil;

    SelectTool select;

  private:
    CanvasTool* toolFor(int index);
    void showPointer(int x, int y);

    EditContext& context_;
    ButtonColours& colours_;
    Readouts& readouts_;
    ToolEnvironment env_;
    FreehandTool freehand_;
    SampleTool sample_;
    FloodTool flood_;
    std::array<ShapeTool, 7> shapes_;

    int pressedButton_ = 0;
    int activeTool_ = Pencil;
    Gesture gesture_;
};
