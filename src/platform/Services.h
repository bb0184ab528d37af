#pragma once

#include "platform/ClipboardService.h"
#include "platform/UserDialogs.h"

#include <functional>

// What the editor needs from the world outside its own state. The program
// plugs in Qt; a test plugs in doubles.
struct Services {
    UserDialogs* dialogs = nullptr;
    ClipboardService* clipboard = nullptr;
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
};
