#include "tools/ToolEnvironment.h"

#include "app/Editor.h"

IconDocument& ToolEnvironment::document() const {
    return editor_.doc;
}
Canvas& ToolEnvironment::canvas() const {
    return editor_.canvas;
}
ButtonColours& ToolEnvironment::colours() const {
    return editor_.colours;
}
const Plane& ToolEnvironment::colourChart() const {
    return editor_.pickers.PicPal;
}

double ToolEnvironment::random() const {
    return editor_.services.random();
}
void ToolEnvironment::letEventsRun() const {
    editor_.services.letEventsRun();
}

void ToolEnvironment::refresh() const {
    editor_.refresh();
}
void ToolEnvironment::clearDragReadout() const {
    editor_.readoutToXY.clear();
}

int ToolEnvironment::previousTool() const {
    return editor_.tools.previousTool;
}
void ToolEnvironment::chooseTool(int index) const {
    editor_.tools.chooseTool(index);
}
