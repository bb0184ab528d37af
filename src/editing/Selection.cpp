#include "editing/Selection.h"

#include "app/Editor.h"

void Selection::CommitSelection() {
    SelUnchanged = SelMarked;
    SelMarked = false;
    SelFloating = false;
    SelRect = Rect{};
    SelUnchanged = false;
}
