#pragma once

class Canvas;
class IconDocument;
class ModUndoRedo;
class Selection;
struct Services;

// All a subsystem may reach of the editor: the document and its views, the
// selection and the undo history, the services, and the steps every command
// shares. The editor implements it; subsystems never see the editor itself.
class EditContext {
  public:
    virtual IconDocument& doc() = 0;
    virtual Canvas& canvas() = 0;
    virtual Selection& selection() = 0;
    virtual ModUndoRedo& undoRedo() = 0;
    virtual Services& services() = 0;

    // Commits a marked or floating selection, if there is one.
    virtual void commitSelection() = 0;
    // The guard before the document is replaced: commits the selection and
    // offers to save a modified document; false when the user cancelled.
    virtual bool mayReplaceDocument() = 0;
    // The redraw after every change of the planes; sets modified.
    virtual void refresh() = 0;
    // The editing convention's tail: clear redo, record the new state.
    virtual void recordEdit() = 0;
    // Chooses the Select tool, as a click on its button does.
    virtual void chooseSelectTool() = 0;
    // New icon of size index 0, 1, 2 (16, 32, 48), as the File menu's New.
    virtual void newIcon(int sizeIndex) = 0;

  protected:
    ~EditContext() = default;
};
