#pragma once

#include "platform/Plane.h"

#include <QStringList>

#include <optional>

struct HotSpot {
    int x = 0;
    int y = 0;
};

// The questions only the file commands ask.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    // "Multi Icon Resource": the chosen line's index, or -1 on Cancel.
    virtual int chooseIconLine(const QStringList& lines) = 0;
    // "Select Hot Spot", shown over the zoomed canvas; empty when cancelled.
    virtual std::optional<HotSpot> chooseHotSpot(const Plane& canvas, int zoom, int maxIndex) = 0;
};
