#pragma once

#include "platform/Plane.h"

#include <QString>
#include <QStringList>

#include <optional>

struct HotSpot {
    int x = 0;
    int y = 0;
};

// The icon chosen in the extraction browser: its file and its place there.
struct ExtractedIconChoice {
    QString path;
    int index = 0;
};

// The questions only the file commands ask.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    // "Multi Icon Resource": the chosen line's index, or -1 on Cancel.
    virtual int chooseIconLine(const QStringList& lines) = 0;
    // "Select Hot Spot", shown over the zoomed canvas; empty when cancelled.
    virtual std::optional<HotSpot> chooseHotSpot(const Plane& canvas, int zoom, int maxIndex) = 0;
    // The extraction browser, opened on startFile; empty when cancelled. Its
    // Browse opens in recentFolder and makes a chosen file's folder the new one.
    virtual std::optional<ExtractedIconChoice> chooseExtractedIcon(const QString& startFile,
                                                                   QString& recentFolder) = 0;
};
