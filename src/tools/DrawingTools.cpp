#include "tools/DrawingTools.h"

#include "canvas/Canvas.h"
#include "canvas/Coordinates.h"
#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/ModUndoRedo.h"
#include "tools/ButtonColours.h"
#include "tools/Readouts.h"

#include <algorithm>

namespace {

using Figure = ShapeTool::Figure;
using Inside = ShapeTool::Inside;

// The canvas holds the pointer while a button is down, so coordinates may lie
// anywhere on the screen. Within this reach, which no desktop exceeds, a line
// or ellipse keeps the slope and curve the pointer gave it; only input from
// beyond it is pulled in, so a figure never costs more than its reach.
constexpr int kReach = 1 << 16;
int withinReach(int v) {
    return std::clamp(v, -kReach, Canvas::kCanvasSize + kReach);
}

} // namespace

DrawingTools::DrawingTools(EditContext& context, ButtonColours& colours, const Plane& colourChart,
                           Readouts& readouts)
    : select(context, readouts), context_(context), colours_(colours), readouts_(readouts),
      env_(context, *this, colours, colourChart, readouts), freehand_(env_), sample_(env_),
      flood_(env_), shapes_{{ShapeTool(env_, Figure::Line, Inside::Hollow),
                             ShapeTool(env_, Figure::Box, Inside::Hollow),
                             ShapeTool(env_, Figure::Ellipse, Inside::Hollow),
                             ShapeTool(env_, Figure::Box, Inside::Solid),
                             ShapeTool(env_, Figure::Ellipse, Inside::Solid),
                             ShapeTool(env_, Figure::Box, Inside::Filled),
                             ShapeTool(env_, Figure::Ellipse, Inside::Filled)}} {}

void DrawingTools::chooseTool(int index) {
    if (index < 0 || index >= ToolCount)
        return;
    // Sample hands back to the tool before it; Select and Erase are never
    // where it hands back to.
    if (currentTool != Select && currentTool != Erase && currentTool != Sample)
        previousTool = currentTool;
    currentTool = index;
    context_.commitSelection();
    const bool ownIcon = index == Pencil || index == Erase || index == Sample || index == Flood;
    canvasCursorTool = ownIcon ? index : Select;
}

void DrawingTools::resetToPencil() {
    currentTool = Pencil;
    previousTool = Pencil;
    canvasCursorTool = Pencil;
    pressedButton_ = 0;
}

CanvasTool* DrawingTools::toolFor(int index) {
    switch (index) {
    case Pencil:
    case Erase:
        return &freehand_;
    case Sample:
        return &sample_;
    case Flood:
        return &flood_;
    case Select:
        return nullptr;
    default:
        return &shapes_[static_cast<std::size_t>(index - Line)];
    }
}

void DrawingTools::showPointer(int x, int y) {
    const int zoom = context_.doc().zoom;
    readouts_.xy =
        Coordinates::pointText(Coordinates::iconPixel(x, zoom), Coordinates::iconPixel(y, zoom));
}

void DrawingTools::mouseDown(int button, int x, int y) {
    // A second button pressed during a gesture does not start another one.
    if ((button != 1 && button != 2) || drawing())
        return;
    x = withinReach(x);
    y = withinReach(y);
    const int tool = currentTool;
    // Select and Sample leave the picture alone, so the redo history stays.
    if (tool != Select && tool != Sample)
        context_.undoRedo().ClearRedo();
    const int index = button - 1;
    gesture_.buttonIndex = index;
    const Colour face = context_.canvas().buttonFace;
    gesture_.colour = DrawingColour::of(colours_.value[index], tool == Erase, face);
    gesture_.other = DrawingColour::of(colours_.value[1 - index], false, face);
    gesture_.startX = x;
    gesture_.startY = y;
    pressedButton_ = button;
    activeTool_ = tool;
    showPointer(x, y);
    if (tool == Select)
        select.mouseDown(x, y);
    else
        toolFor(tool)->begin(gesture_);
}

void DrawingTools::mouseMove(int button, int x, int y) {
    x = withinReach(x);
    y = withinReach(y);
    showPointer(x, y);
    if (button == 0 || !drawing())
        return;
    readouts_.toXY = readouts_.xy;
    if (activeTool_ == Select)
        select.mouseMove(x, y);
    else
        toolFor(activeTool_)->move(gesture_, x, y);
}

void DrawingTools::mouseUp(int button, int x, int y) {
    if (!drawing() || button != pressedButton_)
        return;
    pressedButton_ = 0;
    if (activeTool_ == Select) {
        select.mouseUp(withinReach(x), withinReach(y));
        return;
    }
    toolFor(activeTool_)->end(gesture_);
    if (activeTool_ != Sample)
        context_.recordEdit();
}
