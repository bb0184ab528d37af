#pragma once

#include "operations/MenuActions.h"

class EditContext;
class OperationDialogs;

// The commands of the Image, Color and Effects menus. Each
// picks its target (the floating selection, else the marked area, else the
// whole icon), changes the target's two planes, and finishes as the target
// requires.
class Operations {
  public:
    Operations(EditContext& context, OperationDialogs& dialogs)
        : context_(context), dialogs_(dialogs) {}

    // A click on MnuImageAction(index); a separator's index does nothing.
    void imageAction(ImageAction item);
    // Whether an Image menu item is enabled when the menu opens: a reflection
    // of a selection needs an even extent across its mirror line.
    bool imageActionEnabled(ImageAction item) const;
    void colorAction(ColorAction item);
    void fxAction(FxAction item);

  private:
    void rotate(ImageAction item);
    void adjustColours();
    void gradientTransparency();
    void buttonize();
    void addText();
    void capture();

    EditContext& context_;
    OperationDialogs& dialogs_;
};
