#pragma once

#include "tools/SelectTool.h"

class Editor;

// The tool buttons OptTool 0..11 and what the mouse does on the canvas with
// each of them.
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

    explicit DrawingTools(Editor& editor) : select(editor), editor_(editor) {}

    // A click on OptTool(index).
    void chooseTool(int index);
    // New's reset: Pencil, with Pencil as the previous tool.
    void resetToPencil();

    // The canvas mouse, in canvas pixels; button 1 is left, 2 right, others
    // are ignored.
    void mouseDown(int button, int x, int y);
    void mouseMove(int button, int x, int y);
    void mouseUp(int button, int x, int y);

    int currentTool = Pencil;
    int previousTool = Pencil;
    // Whose OptTool icon the canvas shows as its mouse pointer.
    int canvasCursorTool = Pencil;

    SelectTool select;

private:
    Editor& editor_;
};
