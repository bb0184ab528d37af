#include "tools/ToolsFixture.h"

#include "canvas/Canvas.h"

namespace {

class FreehandToolsTest : public ToolsFixture {
  protected:
    // The pixels where the document differs from a fully transparent one.
    std::vector<std::pair<int, int>> paintedPixels() const {
        std::vector<std::pair<int, int>> painted;
        for (int y = 0; y < editor->doc.size; ++y)
            for (int x = 0; x < editor->doc.size; ++x)
                if (!editor->doc.isTransparent(x, y))
                    painted.emplace_back(x, y);
        return painted;
    }
};

using T = DrawingTools;
using Pixels = std::vector<std::pair<int, int>>;

TEST_F(FreehandToolsTest, ClickPaintsExactlyOnePixelAtEverySize) {
    for (int sizeIndex : {0, 1, 2}) {
        SCOPED_TRACE(sizeIndex);
        startWithSize(sizeIndex);
        editor->colours.value[0] = static_cast<std::int32_t>(kRed);
        // Pressed on the far edge of the cell, the click still belongs to it.
        press(1, at(3, zoom() - 1), at(5, zoom() - 1));
        release(1, at(3, zoom() - 1), at(5, zoom() - 1));
        EXPECT_EQ(paintedPixels(), (Pixels{{3, 5}}));
        EXPECT_EQ(pixelAt(3, 5), std::make_pair(kRed, kBlack));
        EXPECT_EQ(editor->canvas.PicIcon.pixel(3, 5), kRed);
        EXPECT_TRUE(editor->doc.modified);
    }
}

TEST_F(FreehandToolsTest, DragPaintsOnlyThePixelsTheMouseReports) {
    drag(1, {{at(1), at(1)}, {at(4), at(1)}, {at(4), at(4)}, {at(4, 5), at(4, 7)}});
    EXPECT_EQ(paintedPixels(), (Pixels{{1, 1}, {4, 1}, {4, 4}}));
}

TEST_F(FreehandToolsTest, OnlyPointsInsideTheGridPaint) {
    const struct {
        int x, y;
        bool paints;
    } points[] = {{0, 50, false},  {384, 50, false}, {50, 0, false},  {50, 384, false},
                  {-7, 50, false}, {1, 1, true},     {383, 383, true}};
    for (const auto& p : points) {
        SCOPED_TRACE(testing::Message() << p.x << ", " << p.y);
        startWithSize(1);
        press(1, p.x, p.y);
        release(1, p.x, p.y);
        EXPECT_EQ(paintedPixels().size(), p.paints ? 1u : 0u);
    }
    EXPECT_EQ(pixelAt(31, 31), std::make_pair(kBlack, kBlack));
}

TEST_F(FreehandToolsTest, PencilPaintsTheCellInsideTheGridOnCanvasAndBackBuffer) {
    const Plane mainBefore = editor->canvas.PicMain;
    const Plane copyBefore = editor->canvas.PicMainCopy;
    editor->colours.value[1] = static_cast<std::int32_t>(kBlue);
    click(2, 2, 3);
    const int left = 2 * 12, top = 3 * 12;
    for (int y = top - 1; y <= top + 13; ++y) {
        for (int x = left - 1; x <= left + 13; ++x) {
            const bool inside = x > left && x < left + 12 && y > top && y < top + 12;
            SCOPED_TRACE(testing::Message() << x << ", " << y);
            EXPECT_EQ(editor->canvas.PicMain.pixel(x, y), inside ? kBlue : mainBefore.pixel(x, y));
            EXPECT_EQ(editor->canvas.PicMainCopy.pixel(x, y),
                      inside ? kBlue : copyBefore.pixel(x, y));
        }
    }
    EXPECT_EQ(editor->canvas.PicIcon.pixel(2, 3), kBlue);
    EXPECT_EQ(pixelAt(2, 3), std::make_pair(kBlue, kBlack));
}

// Erase, and Pencil with "Transparent", write the transparent pair and make
// the cell look like a cell that was never painted.
TEST_F(FreehandToolsTest, ErasingRestoresTheEmptyCellLook) {
    for (int sizeIndex : {0, 2}) {
        for (bool useErase : {true, false}) {
            SCOPED_TRACE(testing::Message() << sizeIndex << (useErase ? " erase" : " pencil"));
            startWithSize(sizeIndex);
            const Plane untouched = editor->canvas.PicMain;
            fillOpaque(kGreen);
            if (useErase)
                editor->tools.chooseTool(T::Erase);
            else
                editor->colours.value[0] = kTransparentColour;
            click(1, 5, 6);
            EXPECT_EQ(pixelAt(5, 6), std::make_pair(kBlack, kWhite));
            EXPECT_EQ(pixelAt(5, 5), std::make_pair(kGreen, kBlack));
            EXPECT_EQ(editor->canvas.PicIcon.pixel(5, 6), kButtonFace);
            const int z = zoom();
            for (int y = 1; y < z; ++y)
                for (int x = 1; x < z; ++x) {
                    ASSERT_EQ(editor->canvas.PicMain.pixel(5 * z + x, 6 * z + y),
                              untouched.pixel(5 * z + x, 6 * z + y))
                        << x << ", " << y;
                    ASSERT_EQ(editor->canvas.PicMainCopy.pixel(5 * z + x, 6 * z + y),
                              untouched.pixel(5 * z + x, 6 * z + y));
                }
        }
    }
}

TEST_F(FreehandToolsTest, EraseIgnoresTheButtonColour) {
    editor->colours.value = {static_cast<std::int32_t>(kRed), static_cast<std::int32_t>(kBlue)};
    fillOpaque(kGreen);
    editor->tools.chooseTool(T::Erase);
    click(2, 7, 7);
    EXPECT_EQ(pixelAt(7, 7), std::make_pair(kBlack, kWhite));
    EXPECT_EQ(editor->colours.value[1], static_cast<std::int32_t>(kBlue));
}

} // namespace
