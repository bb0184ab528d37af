#pragma once

#include "platform/Plane.h"

// The system clipboard's bitmap format.
class ClipboardService {
  public:
    virtual ~ClipboardService() = default;
    // Whether the clipboard offers a picture.
    virtual bool hasImage() const = 0;
    // The picture on the clipboard; an empty plane when there is none.
    virtual Plane image() const = 0;
    // Empties the clipboard and puts the picture on it.
    virtual void setImage(const Plane& picture) = 0;
};
