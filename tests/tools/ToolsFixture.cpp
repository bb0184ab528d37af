#include "tools/ToolsFixture.h"

#include "canvas/Canvas.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace {

// Each letter's colour and mask.
const std::map<char, std::pair<Colour, Colour>> kLooks{
    {'k', {kBlack, kBlack}},   {'g', {0x00FF00, kBlack}}, {'r', {0x0000FF, kBlack}},
    {'b', {0xFF0000, kBlack}}, {'c', {0xFFFF00, kBlack}}, {'i', {0x0000FF, kWhite}},
    {'T', {kBlack, kWhite}}};

// The letter at (x, y) of a picture written "ab/cd", '.' outside it.
char letterAt(std::string_view picture, int x, int y) {
    for (int row = 0; row < y; ++row) {
        const auto slash = picture.find('/');
        if (slash == std::string_view::npos)
            return '.';
        picture.remove_prefix(slash + 1);
    }
    const auto width = static_cast<int>(std::min(picture.find('/'), picture.size()));
    return y >= 0 && x >= 0 && x < width ? picture[x] : '.';
}

} // namespace

void ToolsFixture::draw(const char* picture, char background) {
    for (int y = 0; y < doc().size; ++y)
        for (int x = 0; x < doc().size; ++x) {
            const char letter = letterAt(picture, x, y);
            const auto [colour, mask] = kLooks.at(letter == '.' ? background : letter);
            paint(x, y, colour, mask);
        }
    editor->refresh();
}

// Compares the whole icon as rows of letters, so a failure shows both.
void ToolsFixture::expectPicture(const char* expected, int ox, int oy, char background) const {
    std::string want, have;
    for (int y = 0; y < doc().size; ++y) {
        want += '\n';
        have += '\n';
        for (int x = 0; x < doc().size; ++x) {
            want += letterAt(expected, x - ox, y - oy);
            char shown = '?';
            for (const auto& [letter, look] : kLooks)
                if (pixelAt(x, y) == look)
                    shown = letter == background ? '.' : letter;
            have += shown;
        }
    }
    EXPECT_EQ(have, want);
}

void ToolsFixture::mark(int x1, int y1, int x2, int y2) {
    if (editor->tools().currentTool != DrawingTools::Select)
        editor->tools().chooseTool(DrawingTools::Select);
    drag(1, {{x1, y1}, {x2, y2}});
}

std::string ToolsFixture::enabling(std::initializer_list<EditAction> items) const {
    std::string shown;
    for (EditAction item : items)
        shown += editor->editActionEnabled(item) ? '+' : '-';
    return shown;
}

void ToolsFixture::expectCanvas(FloatingDraw drawSelection, bool withMarquee) const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = rect();
    if (drawSelection)
        (canvas.*drawSelection)(doc(), r.Left, r.Top, r.Right, r.Bottom);
    if (withMarquee)
        canvas.drawSelectionRect(r.Left, r.Top, r.Right, r.Bottom);
    EXPECT_EQ(editor->canvas().PicMain, canvas.PicMain);
    EXPECT_EQ(editor->canvas().PicIcon, canvas.PicIcon);
}
