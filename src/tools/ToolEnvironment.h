#pragma once

#include "platform/Plane.h"

class Canvas;
class DrawingTools;
class EditContext;
struct Readouts;
class IconDocument;
struct ButtonColours;

// All a drawing tool may reach of the editor: the document, the views, the
// button colours and a few services. Keeping it narrow keeps the tools from
// growing into menu commands.
class ToolEnvironment {
  public:
    ToolEnvironment(EditContext& context, DrawingTools& tools, ButtonColours& colours,
                    const Plane& colourChart, Readouts& readouts)
        : context_(context), tools_(tools), colours_(colours), colourChart_(colourChart),
          readouts_(readouts) {}

    IconDocument& document() const;
    Canvas& canvas() const;
    ButtonColours& colours() const;
    // The colour chart PicPal, where the flood fill draws its marker colours.
    const Plane& colourChart() const;

    // Uniform in [0, 1).
    double random() const;
    void letEventsRun() const;

    // Recomposes canvas and preview from the planes; the document is now
    // modified.
    void refresh() const;
    // Blanks the drag read-out beside ImgToXY.
    void clearDragReadout() const;

    int previousTool() const;
    void chooseTool(int index) const;

  private:
    EditContext& context_;
    DrawingTools& tools_;
    ButtonColours& colours_;
    const Plane& colourChart_;
    Readouts& readouts_;
};
