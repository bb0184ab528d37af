#include "support/EditorFixture.h"

#include <cstdio>

namespace {

// A fixed, evenly spread sequence in [0, 1): tests see the same marker
// colours every run.
std::function<double()> fixedRandom() {
    auto state = std::make_shared<unsigned>(12345u);
    return [state] {
        *state = *state * 1103515245u + 12345u;
        return static_cast<double>((*state >> 8) & 0xFFFF) / 65536.0;
    };
}

} // namespace

EditorFixture::EditorFixture() {
    startWithSize(1);
}

void EditorFixture::startWithSize(int sizeIndex) {
    editor = std::make_unique<Editor>(dialogs, clipboard);
    editor->services().random = fixedRandom();
    editor->registry() = ModRegistry(settingsDir.filePath(QStringLiteral("Sollent.ini")));
    editor->startUp();
    if (sizeIndex != 1)
        editor->newIcon(sizeIndex);
}

void EditorFixture::press(int button, int x, int y) {
    editor->tools().mouseDown(button, x, y);
}
void EditorFixture::move(int button, int x, int y) {
    editor->tools().mouseMove(button, x, y);
}
void EditorFixture::release(int button, int x, int y) {
    editor->tools().mouseUp(button, x, y);
}

void EditorFixture::drag(int button, std::initializer_list<std::pair<int, int>> points) {
    auto it = points.begin();
    press(button, it->first, it->second);
    for (++it; it != points.end(); ++it)
        move(button, it->first, it->second);
    release(button, (points.end() - 1)->first, (points.end() - 1)->second);
}

std::pair<Colour, Colour> EditorFixture::pixelAt(int x, int y) const {
    return {editor->doc().PicImage.pixel(x, y), editor->doc().PicMask.pixel(x, y)};
}

std::string hex(Colour c) {
    char text[16];
    std::snprintf(text, sizeof text, "%06X", static_cast<unsigned>(c));
    return text;
}
