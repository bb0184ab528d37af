#pragma once

// The question only the selection asks.
class EditingDialogs {
  public:
    virtual ~EditingDialogs() = default;

    // "Paste Options": 0 "Shrink To Fit", 1 "Shrink To Fit (Keep Aspect)", -1 cancelled.
    virtual int choosePasteOption() = 0;
};
