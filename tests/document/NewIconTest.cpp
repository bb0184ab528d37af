#include "support/EditorFixture.h"

namespace {

class NewIconTest : public EditorFixture {};

TEST_F(NewIconTest, EverySizeStartsFullyTransparentWithItsZoom) {
    const struct {
        int index, size, zoom, previewLeft, previewTop;
    } cases[] = {{0, 16, 24, 448, 30}, {1, 32, 12, 440, 22}, {2, 48, 8, 432, 14}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        editor->newIcon(c.index);
        const IconDocument& doc = editor->doc;
        EXPECT_EQ(doc.size, c.size);
        EXPECT_EQ(doc.zoom, c.zoom);
        EXPECT_EQ(doc.maxIndex, c.size - 1);
        EXPECT_EQ(editor->canvas.previewLeft, c.previewLeft);
        EXPECT_EQ(editor->canvas.previewTop, c.previewTop);
        EXPECT_EQ(doc.PicCol.width(), 2 * c.size);
        EXPECT_EQ(doc.colourBuffers[0].size(), static_cast<std::size_t>(c.size * c.size));
        for (int y = 0; y <= doc.maxIndex; ++y)
            for (int x = 0; x <= doc.maxIndex; ++x)
                ASSERT_TRUE(doc.isTransparent(x, y)) << x << "," << y;
        EXPECT_EQ(editor->undoRedo.UndoStack.size(), 1u);
        EXPECT_FALSE(doc.modified);
        EXPECT_EQ(editor->windowTitle, "Brevik - Untitled");
    }
}

} // namespace
