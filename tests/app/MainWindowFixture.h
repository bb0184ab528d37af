#pragma once

#include "app/frmMain.h"
#include "platform/MemoryClipboard.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// Starts the window with a settings store of its own in folder and makes it
// the active one, so its shortcuts answer keys.
inline void startActive(frmMain& window, const QTemporaryDir& folder, const QString& store,
                        const QString& commandLine = {}) {
    window.editor().registry() = ModRegistry(folder.filePath(store));
    window.startUp(commandLine);
    window.activateWindow();
    QApplication::processEvents();
}

// The real main window on the offscreen platform, with scripted dialogs, an
// in-memory clipboard and a settings store of its own.
class MainWindowFixture : public ::testing::Test {
  protected:
    void SetUp() override { startActive(*window, folder, "store.ini"); }
    Editor& editor() { return window->editor(); }

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    MemoryClipboard clipboard;
    std::unique_ptr<frmMain> window = std::make_unique<frmMain>(&dialogs, &clipboard);
};

// The real main window asking with its Qt dialogs, for a test that drives one
// of those dialogs through its controls.
struct QtDialogsWindow {
    QtDialogsWindow() { startActive(window, folder, "store.ini"); }

    QTemporaryDir folder;
    MemoryClipboard clipboard;
    frmMain window{nullptr, &clipboard};
};

// Presses keys on the window and hands the modal dialog D they open to drive;
// whether that dialog came.
template <class D>
bool driveDialog(QWidget& window, QKeyCombination keys, const std::function<void(D&)>& drive) {
    bool came = false;
    QTimer::singleShot(0, &window, [&] {
        if (auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget())) {
            came = true;
            drive(*dialog);
        }
    });
    QTest::keyClick(&window, keys.key(), keys.keyboardModifiers());
    return came;
}

// 0x00RRGGBB of a pixel of what a widget shows on screen.
inline Colour colourAt(QWidget* widget, int x, int y) {
    const QRgb p = widget->grab().toImage().pixel(x, y);
    return rgb(qRed(p), qGreen(p), qBlue(p));
}
