#include "editing/EditTarget.h"

#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/Selection.h"

EditTarget targetFor(EditContext& context, bool liftMarked) {
    IconDocument& doc = context.doc();
    Selection& selection = context.selection();
    if (selection.SelMarked && liftMarked)
        selection.BeginMove();
    if (selection.SelFloating)
        return {EditTarget::Floating, doc.PicSelImage, doc.PicSelMask};
    if (selection.SelMarked)
        return {EditTarget::Marked, doc.PicSelImage, doc.PicSelMask};
    return {EditTarget::Whole, doc.PicImage, doc.PicMask};
}

void finishEdit(EditContext& context, const EditTarget& target) {
    if (target.kind == EditTarget::Whole) {
        context.refresh();
        context.recordEdit();
        return;
    }
    // A rotation turns the selection planes: the rectangle takes their new
    // size and keeps its top-left corner.
    Selection& selection = context.selection();
    const int zoom = context.doc().zoom;
    selection.SelRect.Right = selection.SelRect.Left + zoom * target.mask.width();
    selection.SelRect.Bottom = selection.SelRect.Top + zoom * target.mask.height();
    if (target.kind == EditTarget::Marked)
        selection.MarkedChanged = true;
    selection.redrawFloating();
}
