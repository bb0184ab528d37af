#include "editing/ModUndoRedo.h"

#include "document/IconDocument.h"
#include "platform/Raster.h"

void ModUndoRedo::Reset() {
    UndoStack.clear();
    RedoStack.clear();
    UndoCounter = 0;
}

void ModUndoRedo::Push(IconDocument& doc) {
    const int n = doc.size;
    Plane snapshot(2 * n, n, kWhite);
    bitBlt(snapshot, 0, 0, n, n, doc.PicMask, 0, 0, RasterOp::Copy);
    bitBlt(snapshot, n, 0, n, n, doc.PicImage, 0, 0, RasterOp::Copy);
    ++UndoCounter;
    UndoStack.push_back({QString::number(UndoCounter), std::move(snapshot)});
}

void ModUndoRedo::ClearRedo() {
    RedoStack.clear();
}

// Undo and Redo skip what cannot be done (the keyboard shortcut works while
// the menu item is greyed) instead of reporting it.
bool ModUndoRedo::Undo(IconDocument& doc) {
    if (UndoStack.empty())
        return false;
    RedoStack.push_back({QString(), std::move(UndoStack.back().snapshot)});
    UndoStack.pop_back();
    if (UndoStack.empty())
        return false;
    restore(doc, UndoStack.back().snapshot);
    return true;
}

bool ModUndoRedo::Redo(IconDocument& doc) {
    // With nothing to redo only the move is skipped: the planes still go
    // back to the current state, which undoes a change nothing recorded.
    const bool moved = !RedoStack.empty();
    if (moved) {
        UndoStack.push_back({QString(), std::move(RedoStack.back().snapshot)});
        RedoStack.pop_back();
    }
    if (!UndoStack.empty())
        restore(doc, UndoStack.back().snapshot);
    return moved;
}

void ModUndoRedo::restore(IconDocument& doc, const Plane& snapshot) {
    const int n = doc.size;
    bitBlt(doc.PicMask, 0, 0, n, n, snapshot, 0, 0, RasterOp::Copy);
    bitBlt(doc.PicImage, 0, 0, n, n, snapshot, n, 0, RasterOp::Copy);
}
