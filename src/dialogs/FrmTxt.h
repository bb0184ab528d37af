#pragma once

#include "operations/TextPlanes.h"
#include "widgets/PreviewDialog.h"

#include <QColor>
#include <QFont>

#include <functional>
#include <optional>

class QComboBox;
class QLineEdit;

// "Text": one line of text in a chosen font family, style, size and colour,
// rendered at the icon's size as the user types and shown at actual size.
// Text that would run past the icon's right edge is cut, a character at a
// time, and the text box shows what is left.
class FrmTxt : public PreviewDialog {
    Q_OBJECT
  public:
    // size: the icon's size, which both pictures take.
    FrmTxt(int size, QWidget* parent);

    // The planes Ok took: nothing unless Ok found text that is not blank.
    const std::optional<TextPlanes>& acceptedText() const { return accepted_; }
    // The text font as the pictures draw it: family, style and size chosen.
    QFont textFont() const;

    // The colour chooser "&Text Color" opens: the current colour in, the
    // chosen one out, nothing when the user cancels. The system chooser
    // unless a test answers in its place.
    std::function<std::optional<QColor>(const QColor&)> chooseColour;

    QLineEdit* Txt;
    QComboBox* CboFonts;
    QComboBox* CboStyle;
    QComboBox* CboSize;
    QPushButton* CmdColor;
    QPushButton* CmdOk;
    QPushButton* CmdCancel;
    PictureBox* PicText;
    // The text as last rendered: colour on black, and black on white.
    Plane PicTextImage;
    Plane PicTextMask;

  protected:
    Planes renderPreview(int index) override;
    bool acceptResult() override;

  private:
    // Draws the text box's text into both pictures, cutting it to fit first.
    void render();
    // The text box shows the font and colour the pictures draw with.
    void styleTextBox();

    int size_;
    QColor colour_ = Qt::black;
    std::optional<TextPlanes> accepted_;
    bool rendering_ = false;
    bool renderAgain_ = false;
};
