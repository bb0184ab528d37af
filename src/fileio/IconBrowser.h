#pragma once

#include "fileio/IconSource.h"

#include <QString>

#include <map>
#include <memory>

// What the extraction browser shows of one file: its icons as a grid of
// 32 x 32 pictures, ten a row at a pitch of 38 pixels, the chosen one
// framed in black. The grid can be far taller than its five visible rows,
// so it is drawn a band at a time, only where it is seen.
class IconBrowser {
  public:
    static constexpr int kColumns = 10;
    static constexpr int kPitch = 38;
    static constexpr int kIconInset = 3;
    static constexpr int kVisibleRows = 5;
    static constexpr int kWidth = kColumns * kPitch;          // 380
    static constexpr int kViewHeight = kVisibleRows * kPitch; // 190
    static constexpr Colour kBackground = kWhite;

    // Reads the file and counts its icons. A file that holds none, or cannot
    // be read, leaves the browser as it was and gives false.
    bool open(const QString& path);

    // "Sollent - shell32.dll - 326 Icons"
    QString title() const;
    // "Icon No 7 Selected." for SelectedIcon 6.
    QString info() const;
    // The grid picture's height: five rows at least, else every row.
    int pictureHeight() const;
    // The scroll bar counts pixels; it is needed past five rows.
    bool scrollEnabled() const { return pictureHeight() > kViewHeight; }
    int scrollMaximum() const { return pictureHeight() - kViewHeight; }

    // The grid picture from row of pixels top, height pixels high: white,
    // each icon drawn as over the screen (mask, then image), and the
    // highlight around SelectedIcon.
    Plane band(int top, int height) const;

    // A mouse release at (x, y) of the grid picture: the icon there becomes
    // the chosen one. Points outside the picture and empty cells after the
    // last icon change nothing, and give false.
    bool select(int x, int y);

    QString IconFile;
    QString IconFileName;
    int IconCount = 0;
    int SelectedIcon = 0;

  private:
    const IconLoadResult& icon(int index) const;

    std::unique_ptr<IconSource> source_;
    // Decoded icons, so scrolling back does not decode them again; dropped
    // wholesale when it grows past a few thousand.
    mutable std::map<int, IconLoadResult> decoded_;
};
