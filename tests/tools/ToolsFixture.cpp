#include "tools/ToolsFixture.h"

#include "canvas/Canvas.h"

#include <map>
#include <vector>

namespace {

// Each letter's colour and mask.
const std::map<char, std::pair<Colour, Colour>> kLooks{
    {'k', {kBlack, kBlack}},   {'g', {0x00FF00, kBlack}}, {'r', {0x0000FF, kBlack}},
    {'b', {0xFF0000, kBlack}}, {'c', {0xFFFF00, kBlack}}, {'i', {0x0000FF, kWhite}},
    {'T', {kBlack, kWhite}}};

// "ab/cd" as the rows "ab" and "cd".
std::vector<std::string> rowsOf(const char* picture) {
    std::vector<std::string> rows(1);
    for (const char* c = picture; *c; ++c)
        if (*c == '/')
            rows.emplace_back();
        else
            rows.back().push_back(*c);
    return rows;
}

// The picture's letter at (x, y), '.' outside it.
char letterAt(const std::vector<std::string>& rows, int x, int y) {
    const bool inside = y >= 0 && y < static_cast<int>(rows.size()) && x >= 0 &&
                        x < static_cast<int>(rows[y].size());
    return inside ? rows[y][x] : '.';
}

} // namespace

void ToolsFixture::draw(const char* picture, char background) {
    const auto rows = rowsOf(picture);
    for (int y = 0; y < doc().size; ++y)
        for (int x = 0; x < doc().size; ++x) {
            const char letter = letterAt(rows, x, y);
            const auto [colour, mask] = kLooks.at(letter == '.' ? background : letter);
            paint(x, y, colour, mask);
        }
    editor->refresh();
}

// Compares the whole icon as rows of letters, so a failure shows both.
void ToolsFixture::expectPicture(const char* expected, int ox, int oy, char background) const {
    const auto rows = rowsOf(expected);
    std::string want, have;
    for (int y = 0; y < doc().size; ++y) {
        want += '\n';
        have += '\n';
        for (int x = 0; x < doc().size; ++x) {
            want += letterAt(rows, x - ox, y - oy);
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
