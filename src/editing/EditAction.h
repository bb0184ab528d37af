#pragma once

// The Edit menu's items by their MnuEditAction index; 2 and 8 are separators.
enum class EditAction {
    Undo = 0,
    Redo = 1,
    Cut = 3,
    Copy = 4,
    Paste = 5,
    PasteOpaque = 6,
    Delete = 7,
    Deselect = 9,
    SelectAll = 10,
};
