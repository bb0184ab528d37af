// How long the drawing commands take on the largest icon, 48 x 48. Each must
// stay far below a frame; the flood fill and the full redraw are the heavy
// ones.

#include "platform/MemoryClipboard.h"
#include "session/CancellingDialogs.h"
#include "session/Editor.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

// An editor with a 48 x 48 icon whose dialogs cancel: nothing here asks the
// user.
std::unique_ptr<Editor> largeIcon() {
    static CancellingDialogs dialogs;
    static MemoryClipboard clipboard;
    auto editor = std::make_unique<Editor>(dialogs, clipboard);
    auto state = std::make_shared<unsigned>(1u);
    editor->services().random = [state] {
        *state = *state * 1103515245u + 12345u;
        return static_cast<double>((*state >> 8) & 0xFFFF) / 65536.0;
    };
    editor->startUp();
    editor->newIcon(2);
    return editor;
}

// The history keeps every state; cap it so a long run measures the command,
// not the memory.
void trimHistory(Editor& editor) {
    if (editor.undoRedo().UndoStack.size() > 64) {
        editor.undoRedo().Reset();
        editor.undoRedo().Push(editor.doc());
    }
}

// Flood of the whole icon, alternating two colours so that every fill
// covers all 2304 pixels: marker search, both surface fills, the pass over
// the planes, the redraw and the undo record.
void BM_FloodWholeIcon(benchmark::State& state) {
    auto editor = largeIcon();
    editor->tools().chooseTool(DrawingTools::Flood);
    editor->colours().value = {0x0000FF, 0xFF0000};
    int button = 1;
    for (auto _ : state) {
        editor->tools().mouseDown(button, 200, 200);
        editor->tools().mouseUp(button, 200, 200);
        button = 3 - button;
        trimHistory(*editor);
    }
}
BENCHMARK(BM_FloodWholeIcon)->Unit(benchmark::kMicrosecond);

// The redraw every command ends with: background, stretched planes, grid,
// preview.
void BM_RefreshFromPlanes(benchmark::State& state) {
    auto editor = largeIcon();
    for (auto _ : state) {
        editor->canvas().refreshFromPlanes(editor->doc());
        benchmark::DoNotOptimize(editor->canvas().PicMain.pixels().data());
    }
}
BENCHMARK(BM_RefreshFromPlanes)->Unit(benchmark::kMicrosecond);

// A pencil stroke across the icon: 46 moves, one cell each, and the undo
// record at mouse-up.
void BM_PencilStroke(benchmark::State& state) {
    auto editor = largeIcon();
    for (auto _ : state) {
        editor->tools().mouseDown(1, 4, 4);
        for (int x = 12; x < 380; x += 8)
            editor->tools().mouseMove(1, x, x);
        editor->tools().mouseUp(1, 380, 380);
        trimHistory(*editor);
    }
}
BENCHMARK(BM_PencilStroke)->Unit(benchmark::kMicrosecond);

// Mouse-up of a Filled Ellipse over the whole icon: rubber band removed, both
// planes drawn, redraw, undo record.
void BM_FilledEllipseMouseUp(benchmark::State& state) {
    auto editor = largeIcon();
    editor->tools().chooseTool(DrawingTools::FilledEllipse);
    for (auto _ : state) {
        state.PauseTiming();
        editor->tools().mouseDown(1, 4, 4);
        editor->tools().mouseMove(1, 380, 380);
        state.ResumeTiming();
        editor->tools().mouseUp(1, 380, 380);
        trimHistory(*editor);
    }
}
BENCHMARK(BM_FilledEllipseMouseUp)->Unit(benchmark::kMicrosecond);

// One rubber-band step of the same ellipse: erase the old band, draw the new.
void BM_EllipseRubberBandMove(benchmark::State& state) {
    auto editor = largeIcon();
    editor->tools().chooseTool(DrawingTools::Ellipse);
    editor->tools().mouseDown(1, 4, 4);
    int x = 300;
    for (auto _ : state) {
        editor->tools().mouseMove(1, x, x);
        x = x == 300 ? 380 : 300;
    }
    editor->tools().mouseUp(1, x, x);
}
BENCHMARK(BM_EllipseRubberBandMove)->Unit(benchmark::kMicrosecond);

} // namespace
