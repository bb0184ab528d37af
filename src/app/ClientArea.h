#pragma once

#include <QWidget>

// frmMain's client area: paints the window's own edges (the band under the
// menu bar, the wells around the canvas, preview, read-outs, pickers and
// swatches, the etched cells of the tool buttons); the controls lie on it.
class ClientArea : public QWidget {
  public:
    explicit ClientArea(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
