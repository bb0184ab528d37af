#include "tools/ToolsFixture.h"

namespace {

class IconDocumentTest : public ToolsFixture {};

TEST_F(IconDocumentTest, ClearingARectangleMakesExactlyItsPixelsTransparent) {
    startWithSize(0);
    draw("k/.....i", 'r');
    editor->doc().clearToTransparent(24, 24, 96, 72); // icon pixels (1, 1) to (3, 2)
    expectPicture("k....../.TTT.i./.TTT...", 0, 0, 'r');
    // Corners off the cell corners truncate; and a single pixel.
    editor->doc().clearToTransparent(5 * 24 + 5, 2 * 24 + 23, 7 * 24 + 10, 4 * 24);
    editor->doc().clearToTransparent(0, 0, 24, 24);
    expectPicture("T....../.TTT.i./.TTT.TT/.....TT", 0, 0, 'r');
}

} // namespace
