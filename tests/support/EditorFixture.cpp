#include "support/EditorFixture.h"

void EditorFixture::startWithSize(int sizeIndex) {
    editor = std::make_unique<Editor>(dialogs, clipboard);
    // A fixed, evenly spread sequence in [0, 1): tests see the same marker
    // colours every run.
    editor->services().random = [state = 12345u]() mutable {
        state = state * 1103515245u + 12345u;
        return static_cast<double>((state >> 8) & 0xFFFF) / 65536.0;
    };
    editor->registry() = ModRegistry(settingsDir.filePath(QStringLiteral("Sollent.ini")));
    editor->startUp();
    if (sizeIndex != 1)
        editor->newIcon(sizeIndex);
}

void EditorFixture::drag(int button, std::initializer_list<std::pair<int, int>> points) {
    press(button, points.begin()->first, points.begin()->second);
    for (auto it = points.begin() + 1; it != points.end(); ++it)
        move(button, it->first, it->second);
    release(button, (points.end() - 1)->first, (points.end() - 1)->second);
}

std::string hex(Colour c) {
    return QStringLiteral("%1").arg(c, 6, 16, QLatin1Char('0')).toUpper().toStdString();
}
