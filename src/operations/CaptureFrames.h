#pragma once

#include "platform/Plane.h"

// The capture window's moving outline: for an outer size S (18, 34 or 50) one
// picture of four frames stacked down, frame k in rows k * S to k * S + S - 1.
// Each frame is a mask in columns 0 to S - 1 and its colour image in columns
// S to 2S - 1, drawn over the screen with AND and then XOR.
namespace CaptureFrames {
constexpr int kPhases = 4;

// A one-pixel square outline of black and white dashes, two pixels each,
// that creeps one pixel clockwise from one frame to the next; inside it the
// frame is transparent. Empty for any size but 18, 34 and 50.
Plane picture(int outerSize);
} // namespace CaptureFrames
