#include "tools/ToolsFixture.h"

#include "canvas/Canvas.h"

#include <utility>
#include <vector>

namespace {

struct Look {
    char letter;
    Colour colour, mask;
};
constexpr Look kLooks[] = {{'k', kBlack, kBlack},   {'g', 0x00FF00, kBlack},
                           {'r', 0x0000FF, kBlack}, {'b', 0xFF0000, kBlack},
                           {'i', 0x0000FF, kWhite}, {'T', kBlack, kWhite}};

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

} // namespace

void ToolsFixture::draw(const char* picture, char background) {
    const auto rows = rowsOf(picture);
    for (int y = 0; y < editor->doc().size; ++y)
        for (int x = 0; x < editor->doc().size; ++x) {
            const std::string row = y < static_cast<int>(rows.size()) ? rows[y] : "";
            const char letter =
                x < static_cast<int>(row.size()) && row[x] != '.' ? row[x] : background;
            for (const Look& look : kLooks)
                if (look.letter == letter) {
                    editor->doc().PicImage.setPixel(x, y, look.colour);
                    editor->doc().PicMask.setPixel(x, y, look.mask);
                }
        }
    editor->refresh();
}

std::string ToolsFixture::picture(int ox, int oy, int w, int h, char background) const {
    std::string text;
    for (int y = oy; y < oy + h; ++y) {
        text += y > oy ? "/" : "";
        for (int x = ox; x < ox + w; ++x) {
            char letter = '?';
            for (const Look& look : kLooks)
                if (pixelAt(x, y) == std::make_pair(look.colour, look.mask))
                    letter = look.letter == background ? '.' : look.letter;
            text += letter;
        }
    }
    return text;
}

void ToolsFixture::expectPicture(const char* expected, int ox, int oy, char background) const {
    const auto rows = rowsOf(expected);
    const int w = static_cast<int>(rows[0].size()), h = static_cast<int>(rows.size());
    EXPECT_EQ(picture(ox, oy, w, h, background), expected);
    for (int y = 0; y < editor->doc().size; ++y)
        for (int x = 0; x < editor->doc().size; ++x) {
            const bool inside = x >= ox && x < ox + w && y >= oy && y < oy + h;
            ASSERT_TRUE(inside || picture(x, y, 1, 1, background) == ".") << x << "," << y;
        }
}

void ToolsFixture::mark(int x1, int y1, int x2, int y2) {
    if (editor->tools().currentTool != DrawingTools::Select)
        editor->tools().chooseTool(DrawingTools::Select);
    drag(1, {{x1, y1}, {x2, y2}});
}

void ToolsFixture::expectRedrawnSelection() const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = rect();
    canvas.stampFloating(doc(), r.Left, r.Top, r.Right, r.Bottom);
    canvas.drawSelectionRect(r.Left, r.Top, r.Right, r.Bottom);
    EXPECT_EQ(editor->canvas().PicMain, canvas.PicMain);
    EXPECT_EQ(editor->canvas().PicIcon, canvas.PicIcon);
}

void ToolsFixture::expectViews(bool withFloating, bool withMarquee) const {
    Canvas canvas;
    canvas.placePreview(doc().size);
    canvas.compose(doc());
    const Selection::Rect& r = rect();
    if (withFloating)
        canvas.drawFloating(doc(), r.Left, r.Top, r.Right, r.Bottom);
    if (withMarquee)
        canvas.drawSelectionRect(r.Left, r.Top, r.Right, r.Bottom);
    EXPECT_EQ(editor->canvas().PicMain, canvas.PicMain);
    EXPECT_EQ(editor->canvas().PicIcon, canvas.PicIcon);
}
