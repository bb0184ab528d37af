#include "operations/Operations.h"
#include "operations/ScreenCapture.h"
#include "operations/TextPlanes.h"
#include "platform/Raster.h"
#include "tools/ToolsFixture.h"

namespace {

TEST(TextPlanes, OkHardensEveryGreyEdgeAndTakesNothingBlank) {
    Plane mask(5, 1);
    const Colour greys[] = {kWhite, 0xFEFFFF, 0x808080, 0x000001, kBlack};
    for (int x = 0; x < 5; ++x)
        mask.setPixel(x, 0, greys[x]);
    const Plane image(5, 1, 0x102030);
    EXPECT_FALSE(TextPlanes::accepted("", {image, mask}));
    EXPECT_FALSE(TextPlanes::accepted("   ", {image, mask}));
    const std::optional<TextPlanes> taken = TextPlanes::accepted(" a ", {image, mask});
    ASSERT_TRUE(taken);
    EXPECT_EQ(taken->mask.pixels(), std::vector<Colour>({kWhite, kBlack, kBlack, kBlack, kBlack}));
    EXPECT_EQ(taken->image, image);
}

TEST(ScreenCapture, TakesTheSquareInsideTheOutlineAndTheLimitKeepsItOnTheScreen) {
    const Plane screen = numberedPlane(70, 60);
    for (const int size : {16, 32, 48}) {
        const QRect area = ScreenCapture::confinement(QSize(70, 60), size);
        // The outline at the far corner ends on the screen's last pixel.
        EXPECT_EQ(area.bottomRight() + QPoint(size + 1, size + 1), QPoint(69, 59));
        EXPECT_EQ(ScreenCapture::confined(QPoint(500, -3), area), QPoint(area.right(), 0));
        for (const QPoint at : {QPoint(0, 0), QPoint(3, 2), area.bottomRight()}) {
            Plane image(size, size, kWhite), mask(size, size, kWhite), expected(size, size);
            ScreenCapture::take(ScreenCapture::squareAt(screen, at, size + 2), image, mask);
            bitBlt(expected, 0, 0, size, size, screen, at.x() + 1, at.y() + 1, RasterOp::Copy);
            EXPECT_EQ(std::pair(image, mask), std::pair(expected, Plane(size, size, kBlack)))
                << size << " at " << at.x() << ", " << at.y();
        }
    }
}

using TextCaptureCommands = ToolsFixture;

// Both commands commit a marked area first, unrecorded. Text floats at the
// corner and is recorded only when committed; a capture is recorded even
// when the dialog is left.
TEST_F(TextCaptureCommands, TextFloatsUntilCommittedAndCaptureAlwaysRecords) {
    for (const bool ok : {true, false}) {
        startWith(0, "rg", 'T');
        mark(at(0), at(0), at(1), at(1));
        editor->doc().modified = false;
        TextPlanes text{Plane(16, 16), Plane(16, 16, kWhite)};
        text.image.setPixel(1, 0, kBlue);
        text.mask.setPixel(1, 0, kBlack);
        dialogs.texts.push_back(ok ? std::optional(text) : std::nullopt);
        editor->operations().fxAction(FxAction::AddText);
        EXPECT_EQ(std::tuple(sel().SelFloating, sel().SelMarked, doc().modified, undoSize()),
                  std::tuple(ok, false, ok, 2u));
        expectPicture("rg", 0, 0, 'T');
        expectViews(ok, ok);
        editor->commitSelection();
        expectPicture(ok ? "rb" : "rg", 0, 0, 'T');
        EXPECT_EQ(undoSize(), ok ? 3u : 2u);

        mark(at(0), at(0), at(1), at(1));
        const Plane square = ScreenCapture::squareAt(numberedPlane(40, 40), QPoint(4, 5), 18);
        dialogs.captures.push_back(ok ? std::optional(square) : std::nullopt);
        editor->operations().fxAction(FxAction::Capture);
        EXPECT_FALSE(sel().exists());
        if (ok) {
            EXPECT_EQ(std::tuple(pixelAt(0, 0), pixelAt(15, 15), doc().PicMask),
                      std::tuple(std::pair(rgb(5, 6, 7), kBlack), std::pair(rgb(20, 21, 7), kBlack),
                                 Plane(16, 16, kBlack)));
        } else {
            expectPicture("rg", 0, 0, 'T');
        }
        EXPECT_EQ(undoSize(), ok ? 4u : 3u);
        expectViews();
        EXPECT_EQ(std::pair(dialogs.textSizes.back(), dialogs.captureSizes.back()),
                  std::pair(16, 16));
    }
}

} // namespace
