#pragma once

#include "platform/ClipboardService.h"

// A clipboard that lives in the test.
class MemoryClipboard : public ClipboardService {
  public:
    bool hasImage() const override { return !picture.isEmpty(); }
    Plane image() const override { return picture; }
    void setImage(const Plane& p) override;

    Plane picture;
    int writes = 0;
};
