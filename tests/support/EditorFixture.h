#pragma once

#include "platform/MemoryClipboard.h"
#include "session/Editor.h"
#include "support/ScriptedDialogs.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

// An editor wired to scripted dialogs, an in-memory clipboard and a fixed
// random sequence, started as the program starts: a new 32 x 32 icon.
class EditorFixture : public ::testing::Test {
  protected:
    EditorFixture() { startWithSize(1); }

    // A fresh editor of the given size index (0, 1, 2).
    void startWithSize(int sizeIndex);

    // Mouse on the canvas, in canvas pixels; button 1 left, 2 right.
    void press(int button, int x, int y) { editor->tools().mouseDown(button, x, y); }
    void move(int button, int x, int y) { editor->tools().mouseMove(button, x, y); }
    void release(int button, int x, int y) { editor->tools().mouseUp(button, x, y); }
    // Press at the first point, move through the rest, release at the last.
    void drag(int button, std::initializer_list<std::pair<int, int>> points);

    // The document pixel as (colour, mask).
    std::pair<Colour, Colour> pixelAt(int x, int y) const {
        return {editor->doc().PicImage.pixel(x, y), editor->doc().PicMask.pixel(x, y)};
    }

    ScriptedDialogs dialogs;
    // The recent files and folder of these editors, never the user's own.
    QTemporaryDir settingsDir;
    MemoryClipboard clipboard;
    std::unique_ptr<Editor> editor;
};

// Canvas colours of a cell interior and the like, for readable failures.
std::string hex(Colour c);
