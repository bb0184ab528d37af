#include "tools/ToolEnvironment.h"

#include "editing/EditContext.h"
#include "platform/Services.h"
#include "tools/DrawingTools.h"
#include "tools/Readouts.h"

IconDocument& ToolEnvironment::document() const {
    return context_.doc();
}
Canvas& ToolEnvironment::canvas() const {
    return context_.canvas();
}
ButtonColours& ToolEnvironment::colours() const {
    return colours_;
}
const Plane& ToolEnvironment::colourChart() const {
    return colourChart_;
}

double ToolEnvironment::random() const {
    return context_.services().random();
}
void ToolEnvironment::letEventsRun() const {
    context_.services().letEventsRun();
}

void ToolEnvironment::refresh() const {
    context_.refresh();
}
void ToolEnvironment::clearDragReadout() const {
    readouts_.toXY.clear();
}

int ToolEnvironment::previousTool() const {
    return tools_.previousTool;
}
void ToolEnvironment::chooseTool(int index) const {
    tools_.chooseTool(index);
}
