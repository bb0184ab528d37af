#pragma once

#include "fileio/IconFileTypes.h"

#include <QByteArray>
#include <optional>

// A file that holds icons, read once: an .ico here, and the executables,
// icon libraries and animated cursors the extraction browser will read.
class IconSource {
  public:
    virtual ~IconSource() = default;

    virtual int count() const = 0;
    // The decoded planes of image index: the mask black where opaque and
    // white where transparent, the colour image as stored.
    virtual IconLoadResult image(int index) const = 0;

    // Icon index as an .ico or .cur file of its own, every image byte for
    // byte as stored: a group resource's directory rebuilt around its images,
    // an animation step's frame, an icon file itself. nullopt when the file
    // does not hold every image the icon names, and from a reader that keeps
    // no icon whole (IcoFile reads its file image by image).
    virtual std::optional<QByteArray> storedFile(int index) const {
        (void)index;
        return std::nullopt;
    }
    // What the file calls icon index: a group's resource ID or name, an
    // animation step's number; empty for the one icon of an icon file.
    virtual QString name(int index) const {
        (void)index;
        return {};
    }
};
