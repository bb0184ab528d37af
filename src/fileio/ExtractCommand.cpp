#include "fileio/ExtractCommand.h"

#include "document/IconDocument.h"
#include "editing/EditContext.h"
#include "editing/ModUndoRedo.h"
#include "fileio/FileDialogs.h"
#include "fileio/IconSourceOpener.h"
#include "platform/Raster.h"

void ExtractCommand::run() {
    if (!context_.mayReplaceDocument())
        return;
    const std::optional<ExtractedIconChoice> chosen =
        dialogs_.chooseExtractedIcon(startFile, recentFolder_);
    if (!chosen)
        return;

    IconDocument& doc = context_.doc();
    // The changes were offered for saving before the browser opened; New
    // must not ask again.
    doc.modified = false;
    context_.newIcon(1);
    // A file that changed since the browser read it may no longer give the
    // icon; the new document then stays blank, as drawing a missing icon
    // leaves it.
    const IconSourceOpener::Opened opened = IconSourceOpener::openFile(chosen->path);
    if (opened.source) {
        const IconLoadResult icon = opened.source->image(chosen->index);
        if (icon.ok()) {
            bitBlt(doc.PicMask, 0, 0, doc.size, doc.size, icon.mask, 0, 0, RasterOp::Copy);
            bitBlt(doc.PicImage, 0, 0, doc.size, doc.size, icon.image, 0, 0, RasterOp::Copy);
        }
    }
    // The extracted icon is in no file yet: the redraw marks it modified, so
    // closing offers to save it.
    context_.refresh();
    context_.undoRedo().Reset();
    context_.undoRedo().Push(doc);
}
