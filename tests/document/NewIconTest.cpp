#include "support/EditorFixture.h"

namespace {

class NewIconTest : public EditorFixture {};

TEST_F(NewIconTest, EverySizeStartsFullyTransparentWithItsZoom) {
    const struct {
        int index, size, zoom, previewLeft, previewTop;
    } cases[] = {{2, 48, 8, 432, 14}, {0, 16, 24, 448, 30}, {1, 32, 12, 440, 22}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        IconDocument& doc = editor->doc();
        doc.PicImage.fill(0x123456);
        doc.PicMask.fill(kBlack);
        doc.modified = false;
        editor->colours().value = {0x123456, kTransparentColour};
        editor->newIcon(c.index);
        EXPECT_EQ(std::tuple(doc.size, doc.zoom, doc.maxIndex),
                  std::tuple(c.size, c.zoom, c.size - 1));
        EXPECT_EQ(editor->colours().value, (std::array<std::int32_t, 2>{kBlack, kWhite}));
        EXPECT_EQ(std::pair(editor->canvas().previewLeft, editor->canvas().previewTop),
                  std::pair(c.previewLeft, c.previewTop));
        EXPECT_EQ(std::tuple(doc.PicImage, doc.PicMask, doc.PicSelMask.height()),
                  std::tuple(Plane(c.size, c.size, kBlack), Plane(c.size, c.size, kWhite), c.size));
        EXPECT_EQ(IconDocument::indexForSize(c.size), c.index);
        EXPECT_EQ(editor->undoRedo().UndoStack.size(), 1u);
        EXPECT_FALSE(doc.modified);
        EXPECT_EQ(editor->windowTitle(), "Brevik - Untitled");
    }
    EXPECT_EQ(IconDocument::indexForSize(24), -1);
}

} // namespace
