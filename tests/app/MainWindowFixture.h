#pragma once

#include "app/frmMain.h"
#include "platform/MemoryClipboard.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

// The real main window on the offscreen platform, with scripted dialogs, an
// in-memory clipboard and a settings store of its own.
class MainWindowFixture : public ::testing::Test {
  protected:
    MainWindowFixture() { editor().registry() = ModRegistry(folder.filePath("store.ini")); }
    void SetUp() override { window->startUp({}); }
    // Makes the window the active one, so its shortcuts answer keys.
    void activate() {
        window->activateWindow();
        QApplication::processEvents();
        ASSERT_TRUE(window->isActiveWindow());
    }
    Editor& editor() { return window->editor(); }

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    MemoryClipboard clipboard;
    std::unique_ptr<frmMain> window = std::make_unique<frmMain>(&dialogs, &clipboard);
};

// The real main window asking with its Qt dialogs, started with a settings
// store of its own and made the active window, for a test that drives one of
// those dialogs through its controls.
struct QtDialogsWindow {
    QtDialogsWindow() {
        window.editor().registry() = ModRegistry(folder.filePath("store.ini"));
        window.startUp({});
        window.activateWindow();
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    MemoryClipboard clipboard;
    frmMain window{nullptr, &clipboard};
};

// 0x00RRGGBB of a pixel of what a widget shows on screen.
inline Colour colourAt(QWidget* widget, int x, int y) {
    const QRgb p = widget->grab().toImage().pixel(x, y);
    return rgb(qRed(p), qGreen(p), qBlue(p));
}
