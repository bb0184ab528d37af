#include "tools/ToolsFixture.h"

std::vector<std::string> rowsOf(const char* picture) {
    std::vector<std::string> rows(1);
    for (const char* c = picture; *c; ++c)
        if (*c == '/')
            rows.emplace_back();
        else
            rows.back().push_back(*c);
    return rows;
}

void ToolsFixture::expectPicture(const char* text, int ox, int oy, Colour background, Colour left,
                                 Colour right) const {
    const std::vector<std::string> picture = rowsOf(text);
    const int n = editor->doc.size;
    int wrong = 0;
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            char c = '.';
            const int row = y - oy, column = x - ox;
            if (row >= 0 && row < static_cast<int>(picture.size()) && column >= 0 &&
                column < static_cast<int>(picture[static_cast<std::size_t>(row)].size()))
                c = picture[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            std::pair<Colour, Colour> expected{background, kBlack};
            if (c == 'L')
                expected = {left, kBlack};
            else if (c == 'R')
                expected = {right, kBlack};
            else if (c == 'T')
                expected = {kBlack, kWhite};
            const auto actual = pixelAt(x, y);
            if (actual != expected && ++wrong <= 8)
                ADD_FAILURE() << "pixel (" << x << ", " << y << ") '" << c << "': colour "
                              << hex(actual.first) << " mask " << hex(actual.second)
                              << ", expected colour " << hex(expected.first) << " mask "
                              << hex(expected.second);
        }
    }
    EXPECT_EQ(wrong, 0);
}
