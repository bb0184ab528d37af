#pragma once

#include <QCursor>
#include <QPixmap>
#include <QPoint>
#include <QString>

// The pictures of the tool buttons OptTool 0..11, the canvas pointers made
// from them, and the two small read-out images, all drawn here rather than
// loaded, so the program needs no image files.
namespace ToolIcons {
constexpr int kToolCount = 12;
constexpr int kIconSize = 16;

// "Select", "Pencil", ... "Filled Ellipse": the buttons' tool tips.
QString toolName(int tool);
// The 16 x 16 button picture of a tool.
QPixmap icon(int tool);
// The pixel of the icon that acts as the pointer's tip.
QPoint hotSpot(int tool);
// The canvas pointer: the tool's icon with a white rim, so it shows on the
// black and white hatch as well as on any colour.
QCursor cursor(int tool);

// ImgXY (the pointer's pixel) and ImgToXY (where a drag has reached), 12 x 12.
QPixmap pointerImage();
QPixmap dragImage();
} // namespace ToolIcons
