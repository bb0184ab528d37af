#pragma once

#include "platform/Pen.h"
#include "platform/Plane.h"

#include <optional>

// The figures of the drawing primitives, with the platform's conventions. Each
// figure is gathered as a set of pixels first and then painted once, so an
// inverting figure never inverts a pixel twice where its parts overlap.

// A line from (x1, y1) to (x2, y2) that leaves out its last point.
void drawLine(Plane& plane, int x1, int y1, int x2, int y2, const Pen& pen);

// The outline of the box with corners (x1, y1) and (x2, y2), both included;
// a wider pen grows the outline to both sides of the path.
void drawBox(Plane& plane, int x1, int y1, int x2, int y2, const Pen& pen);

// The box with corners (x1, y1) and (x2, y2), both included, filled.
void fillBox(Plane& plane, int x1, int y1, int x2, int y2, Colour colour);

// The ellipse inscribed in [left, right) x [top, bottom): the right and bottom
// edges are not part of it. The outline is drawn with the pen; the inside is
// filled with fill when one is given.
void drawEllipse(Plane& plane, int left, int top, int right, int bottom, const Pen& pen,
                 std::optional<Colour> fill = std::nullopt);
