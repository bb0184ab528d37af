#pragma once

#include "platform/Plane.h"

class EditContext;

// What an image or colour operation works on: the floating selection, else
// the marked area, else the whole icon. An operation is a function on the
// target's two planes between targetFor and finishEdit.
struct EditTarget {
    enum Kind { Floating, Marked, Whole };

    Kind kind;
    Plane& image;
    Plane& mask;
};

// The target of an operation. liftMarked makes a marked area float first
// (a rotation changes its size, so it cannot stay in place).
EditTarget targetFor(EditContext& context, bool liftMarked);
// A selection is redrawn, its rectangle sized to its planes (kept at its
// top-left corner), and records nothing: the change reaches the undo
// history when the selection is committed. The whole icon is refreshed and
// then recorded.
void finishEdit(EditContext& context, const EditTarget& target);
