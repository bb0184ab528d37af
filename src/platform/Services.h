#pragma once

#include "platform/ClipboardService.h"
#include "platform/UserDialogs.h"

#include <functional>

// What the editor needs from the world outside its own state. The program
// plugs in Qt; a test plugs in doubles; a run without a window plugs in
// dialogs that cancel and a clipboard of its own.
struct Services {
    Services(UserDialogs& d, ClipboardService& c) : dialogs(d), clipboard(c) {}

    UserDialogs& dialogs;
    ClipboardService& clipboard;
    // Lets pending window events run; the program sets it to
    // QCoreApplication::processEvents, tests leave it empty.
    std::function<void()> processEvents;
    // Uniform numbers in [0, 1) for the flood fill's marker search; seeded from
    // the clock unless a test sets a generator of its own.
    std::function<double()> random;
    // Shows or ends a busy pointer (the hourglass while a file is written).
    std::function<void(bool)> setBusy;

    void letEventsRun() const {
        if (processEvents)
            processEvents();
    }
    void showBusy(bool busy) const {
        if (setBusy)
            setBusy(busy);
    }
};
