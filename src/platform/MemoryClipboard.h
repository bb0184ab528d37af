#pragma once

#include "platform/ClipboardService.h"

// A clipboard of the editor's own, for runs without a system clipboard
// (tests, the command line): what is put on it stays in memory.
class MemoryClipboard : public ClipboardService {
  public:
    bool hasImage() const override { return !picture.isEmpty(); }
    Plane image() const override { return picture; }
    void setImage(const Plane& p) override;

    Plane picture;
    int writes = 0;
};
