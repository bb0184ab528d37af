#pragma once

#include "app/frmMain.h"
#include "support/MemoryClipboard.h"
#include "support/ScriptedDialogs.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

// The real main window on the offscreen platform, asking its questions of
// scripted dialogs, with an in-memory clipboard and a settings store of its
// own in a temporary folder.
class MainWindowFixture : public ::testing::Test {
  protected:
    MainWindowFixture();
    ~MainWindowFixture() override;

    // The window's load, with the given command line.
    void start(const QString& commandLine = {});
    // Makes the window the active one, so its shortcuts answer keys.
    void activate();

    Editor& editor() { return window->editor(); }
    // What the canvas and the preview show on screen.
    QImage canvasOnScreen() const;
    QImage previewOnScreen() const;
    QAction* element(const char* name, int index) const;

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    MemoryClipboard clipboard;
    std::unique_ptr<frmMain> window;
};

// 0x00RRGGBB of a screen pixel, for comparing with colour values.
Colour colourAt(const QImage& image, int x, int y);
