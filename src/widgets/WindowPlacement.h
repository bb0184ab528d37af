#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

// Every window of the program, when it loads, sits centred across the screen
// and a third of the way down.
namespace WindowPlacement {
QPoint topLeft(const QSize& screen, const QSize& window);
// Moves the window there, on the screen it is on (or the primary screen).
void place(QWidget& window);
} // namespace WindowPlacement
