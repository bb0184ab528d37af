#pragma once

// The Image menu's items by their MnuImageAction index; 2 and 5 are
// separators.
enum class ImageAction {
    FlipHorizontal = 0,
    FlipVertical = 1,
    RotateLeft = 3,
    RotateRight = 4,
    ReflectLeftInRight = 6,
    ReflectRightInLeft = 7,
    ReflectTopInBottom = 8,
    ReflectBottomInTop = 9,
};

// The Color menu's items by their MnuColorAction index.
enum class ColorAction { Invert = 0, Greyscale = 1, AdjustColors = 2, GradientTransparency = 3 };

// The Effects menu's items by their MnuFxAction index.
enum class FxAction { AddText = 0, Buttonize = 1, Capture = 2 };
