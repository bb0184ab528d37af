#pragma once

#include "platform/ClipboardService.h"

// The system clipboard, through Qt's images.
class QtClipboard : public ClipboardService {
  public:
    bool hasImage() const override;
    Plane image() const override;
    void setImage(const Plane& picture) override;
};
