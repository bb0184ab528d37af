#pragma once

#include "platform/Plane.h"

#include <QString>

#include <utility>
#include <vector>

class IconDocument;

// The edit history as whole-document snapshots. Every edit records the state
// after it, so the last entry of UndoStack is always the document as it
// stands. A snapshot is one picture twice as wide as the icon: the mask on
// the left, the colour plane on the right.
class ModUndoRedo {
  public:
    struct Entry {
        QString key; // the push counter at the time; only makes entries unique
        Plane snapshot;
    };

    // Empties both stacks and restarts the counter.
    void Reset();
    // Appends a snapshot of the document's planes to UndoStack.
    void Push(IconDocument& doc);
    void ClearRedo();
    // Moves the current state to RedoStack and puts the one before it back
    // into the planes. The caller refreshes the views. Does nothing (and
    // says so) when there is nothing to undo.
    bool Undo(IconDocument& doc);
    // Moves the last undone state back, then puts the current state into the
    // planes, also when there was nothing to move; false in that case.
    bool Redo(IconDocument& doc);

    bool canUndo() const { return UndoStack.size() >= 2; }
    bool canRedo() const { return !RedoStack.empty(); }

    std::vector<Entry> UndoStack;
    std::vector<Entry> RedoStack;
    int UndoCounter = 0;

  private:
    static void restore(IconDocument& doc, const Plane& snapshot);
};
