#pragma once

#include "platform/Plane.h"
#include "widgets/OkCancelButtons.h"

#include <QDialog>
#include <QRect>

#include <vector>

class PictureBox;
class QPushButton;

// The base of the modal dialogs that let the user try a change on the icon
// and watch it at actual size before taking it ("Color Adjustment",
// "Gradient", "Text"). A subclass lays out its controls, adds its previews
// and buttons with the helpers below, answers renderPreview(), and calls
// schedulePreview() whenever one of its controls changes.
class PreviewDialog : public QDialog {
    Q_OBJECT
  public:
    // What one preview shows: a colour plane and a mask plane of one size,
    // drawn as the main window's actual-size preview draws the icon, so the
    // user sees transparent and inverting pixels as they will look there.
    struct Planes {
        Plane colour;
        Plane mask;
    };

    // Raised when the dialog is made and lowered only by an Ok whose result
    // the dialog takes; the command that showed the dialog reads it.
    bool cancelled() const { return cancelled_; }
    // The colour under a transparent pixel: the palette's button face, the
    // colour the main window's preview is cleared to.
    Colour previewBackground() const;

  protected:
    // name is the objectName (FrmColAdj, ...), caption the window title; the
    // dialog has the fixed size given and is placed as every window is.
    PreviewDialog(const QString& name, const QString& caption, const QSize& size, QWidget* parent);

    // A preview picture named name, centred inside frame whatever the size of
    // the planes it shows; the dialog paints a sunken inner edge along the inside
    // of frame. Previews are numbered in the order they are added.
    PictureBox* addPreview(const QString& name, const QRect& frame);
    // CmdOk ("&Ok", the default) and CmdCancel ("&Cancel"). Ok closes the
    // dialog and lowers cancelled() if acceptResult() agrees; Cancel closes it.
    OkCancelButtons addOkCancel(const QRect& ok, const QRect& cancel);
    // CmdReset ("&Reset"): runs reset(), then redraws the previews.
    QPushButton* addReset(const QRect& rect);

    // The planes preview index shows for the controls as they stand now.
    virtual Planes renderPreview(int index) = 0;
    // Ok: keeps what the dialog made. Returning false closes the dialog as if
    // cancelled (Text with nothing typed, say).
    virtual bool acceptResult() { return true; }
    // Reset: puts the controls back; the previews are redrawn afterwards.
    virtual void reset() {}

    // Redraws every preview now.
    void updatePreview();
    // Redraws every preview once control returns to the event loop, so that
    // several controls changed in one go cost one drawing.
    void schedulePreview();
    // Shows planes in preview index as they are, for a subclass that animates
    // between two renderings (the spherical gradient's growing disc).
    void showPreview(int index, const Planes& planes);

    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Preview {
        PictureBox* box;
        QRect frame;
    };

    std::vector<Preview> previews_;
    bool cancelled_ = true;
    bool drawn_ = false;
    bool scheduled_ = false;
};
