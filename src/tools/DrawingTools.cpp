#include "tools/DrawingTools.h"

#include "app/Editor.h"

void DrawingTools::chooseTool(int index) {
    if (currentTool != Select && currentTool != Erase && currentTool != Sample)
        previousTool = currentTool;
    currentTool = index;
    editor_.commitSelection();
    const bool ownIcon = index == Pencil || index == Erase || index == Sample || index == Flood;
    canvasCursorTool = ownIcon ? index : Select;
}

void DrawingTools::resetToPencil() {
    currentTool = Pencil;
    previousTool = Pencil;
    canvasCursorTool = Pencil;
}

void DrawingTools::mouseDown(int, int, int) {}
void DrawingTools::mouseMove(int, int, int) {}
void DrawingTools::mouseUp(int, int, int) {}
