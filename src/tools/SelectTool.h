#pragma once

class Editor;

// The Select tool's mouse handling: marking a rectangle on the grid, and
// dragging a marked or floating selection. The selection itself (its planes,
// lifting and committing) is Selection's.
class SelectTool {
public:
    explicit SelectTool(Editor& editor) : editor_(editor) {}

    // Canvas pixels; called by DrawingTools for button 1 or 2 only.
    void mouseDown(int x, int y);
    void mouseMove(int x, int y);
    void mouseUp(int x, int y);

    bool dragging = false;

private:
    Editor& editor_;
};
