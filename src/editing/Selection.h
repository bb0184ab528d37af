#pragma once

class Editor;

// The one rectangular selection: marked (still part of the document) or
// floating (held only in PicSelImage and PicSelMask).
class Selection {
public:
    struct Rect {
        int Left = -1, Top = -1, Right = -1, Bottom = -1;
    };

    explicit Selection(Editor& editor) : editor_(editor) {}

    bool exists() const { return SelMarked || SelFloating; }
    // Stamps the selection into the document and ends it.
    void CommitSelection();

    Rect SelRect;
    bool SelMarked = false;
    bool SelFloating = false;
    bool SelUnchanged = false;

private:
    Editor& editor_;
};
