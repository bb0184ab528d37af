#pragma once

class EditContext;
struct Readouts;

// The Select tool's mouse handling: marking a rectangle on the grid, and
// dragging a marked or floating selection. The selection itself (its planes,
// lifting and committing) is Selection's.
class SelectTool {
  public:
    SelectTool(EditContext& context, Readouts& readouts) : context_(context), readouts_(readouts) {}

    // Canvas pixels; called by DrawingTools for button 1 or 2 only.
    void mouseDown(int x, int y);
    void mouseMove(int x, int y);
    void mouseUp(int x, int y);

    // A selection is being moved.
    bool dragging = false;
    // A new rectangle is being marked.
    bool marking = false;

  private:
    void dragTo(int x, int y);
    void markTo(int x, int y);
    void finishMarking();

    // From the pressed point to the selection's four sides, so a drag keeps
    // its size.
    int offsetLeft_ = 0, offsetTop_ = 0, offsetRight_ = 0, offsetBottom_ = 0;
    EditContext& context_;
    Readouts& readouts_;
};
