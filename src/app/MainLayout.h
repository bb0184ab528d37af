#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where frmMain's controls sit in its client area (the area under the menu
// bar), in pixels. The canvas, the preview box and the read-out boxes are
// fixed by the program's look; the rest is laid out around them.
namespace MainLayout {
// The area under the menu bar: the canvas's margins (11 left, 14 top) are
// kept on the right of the pickers and under the canvas.
constexpr QSize kClientSize(582, 412);

constexpr QPoint kCanvas(11, 14); // PicMain, 385 x 385
constexpr QRect kPreviewBox(408, 11, 96, 54);
constexpr QRect kReadoutXYBox(408, 74, 96, 19);
constexpr QRect kReadoutToXYBox(408, 102, 96, 19);
constexpr QPoint kImgXY(411, 78);
constexpr QPoint kImgToXY(411, 106);
// The read-out text right of the small images.
constexpr QRect kReadoutXYText(425, 75, 78, 17);
constexpr QRect kReadoutToXYText(425, 103, 78, 17);

// OptTool 0..11: three across, four down, each in an etched cell.
constexpr QPoint kToolCells(408, 130);
constexpr int kToolCell = 32;
constexpr int kToolButton = 28;
inline QRect toolCell(int tool) {
    return {kToolCells.x() + tool % 3 * kToolCell, kToolCells.y() + tool / 3 * kToolCell, kToolCell,
            kToolCell};
}

constexpr QPoint kMiniPal(408, 272); // 96 x 52
constexpr QPoint kGreyPal(410, 334); // 92 x 32
constexpr QPoint kScreen(410, 378);  // PicScreen, 23 x 12
// The labels' boxes never overlap, so no font can make their texts collide.
constexpr QRect kScreenLabel(437, 375, 72, 18);
constexpr QPoint kPal(520, 14);               // 51 x 335
constexpr QPoint kLeft(548, 363);             // PicLeft, 23 x 12
constexpr QPoint kRight(548, 383);            // PicRight, 23 x 12
constexpr QRect kLeftLabel(511, 360, 34, 18); // right-aligned to the swatch
constexpr QRect kRightLabel(511, 380, 34, 18);
constexpr QSize kSwatch(23, 12);
} // namespace MainLayout
