#include "operations/CaptureFrames.h"
#include "operations/Operations.h"
#include "operations/ScreenCapture.h"
#include "operations/TextPlanes.h"
#include "tools/ToolsFixture.h"

namespace {

// A screen whose every pixel has a colour of its own.
Plane numberedScreen(int width, int height) {
    Plane screen(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            screen.setPixel(x, y, rgb(x, y, 7));
    return screen;
}

TEST(TextPlanes, OkHardensEveryGreyEdgeAndTakesNothingBlank) {
    Plane mask(5, 1, kWhite);
    const Colour greys[] = {kWhite, 0xFEFFFF, 0x808080, 0x000001, kBlack};
    for (int x = 0; x < 5; ++x)
        mask.setPixel(x, 0, greys[x]);
    const Plane image(5, 1, 0x102030);
    for (const char* text : {"", "   "})
        EXPECT_FALSE(TextPlanes::accepted(text, {image, mask})) << '"' << text << '"';
    const std::optional<TextPlanes> taken = TextPlanes::accepted(" a ", {image, mask});
    ASSERT_TRUE(taken);
    EXPECT_EQ(taken->mask.pixels(), std::vector<Colour>({kWhite, kBlack, kBlack, kBlack, kBlack}));
    EXPECT_EQ(taken->image, image);
}

TEST(ScreenCapture, TakesTheSquareInsideTheOutlineAndTheLimitKeepsItOnTheScreen) {
    const Plane screen = numberedScreen(70, 60);
    for (const int size : {16, 32, 48}) {
        const QRect area = ScreenCapture::confinement(QSize(70, 60), size);
        // The outline at the far corner ends on the screen's last pixel.
        EXPECT_EQ(area.bottomRight() + QPoint(size + 1, size + 1), QPoint(69, 59));
        EXPECT_EQ(ScreenCapture::confined(QPoint(500, -3), area), QPoint(area.right(), 0));
        for (const QPoint release : {QPoint(0, 0), QPoint(3, 2), area.bottomRight()}) {
            Plane image(size, size, kWhite), mask(size, size, kWhite);
            ScreenCapture::take(ScreenCapture::squareAt(screen, release, size + 2), image, mask);
            EXPECT_EQ(mask, Plane(size, size, kBlack));
            Plane expected(size, size);
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    expected.setPixel(x, y, rgb(release.x() + 1 + x, release.y() + 1 + y, 7));
            EXPECT_EQ(image, expected) << size << " at " << release.x() << ", " << release.y();
        }
    }
}

TEST(CaptureFrames, EachPhaseIsAnOpaqueDashedOutlineAroundATransparentSquare) {
    EXPECT_TRUE(CaptureFrames::picture(16).isEmpty());
    const Plane frames = CaptureFrames::picture(18);
    ASSERT_EQ(QSize(frames.width(), frames.height()), QSize(36, 72));
    std::string topRows;
    for (int phase = 0; phase < CaptureFrames::kPhases; ++phase) {
        const int top = phase * 18;
        for (int x = 0; x < 8; ++x)
            topRows += frames.pixel(18 + x, top) == kWhite ? 'W' : 'k';
        topRows += ' ';
        for (const auto& [x, y, outline] : {std::tuple(0, 0, true),
                                            {17, 9, true},
                                            {9, 17, true},
                                            {1, 1, false},
                                            {16, 16, false}}) {
            EXPECT_EQ(frames.pixel(x, top + y), outline ? kBlack : kWhite);
            if (!outline) {
                EXPECT_EQ(frames.pixel(18 + x, top + y), kBlack);
            }
        }
    }
    EXPECT_EQ(topRows, "WWkkWWkk kWWkkWWk kkWWkkWW WkkWWkkW ");
}

class TextCaptureCommands : public ToolsFixture {
  protected:
    Operations& operations() { return editor->operations(); }
};

TEST_F(TextCaptureCommands, TextFloatsAtTheCornerAndIsRecordedOnlyWhenCommitted) {
    for (const bool ok : {true, false}) {
        startWithSize(0);
        draw("rg", 'T');
        recordPainting();
        mark(at(0), at(0), at(1), at(1)); // committed first, unrecorded
        editor->doc().modified = false;
        TextPlanes text{Plane(16, 16), Plane(16, 16, kWhite)};
        text.image.setPixel(1, 0, kBlue);
        text.mask.setPixel(1, 0, kBlack);
        dialogs.texts.push_back(ok ? std::optional(text) : std::nullopt);
        operations().fxAction(FxAction::AddText);
        EXPECT_EQ(dialogs.textSizes.back(), 16);
        EXPECT_EQ(sel().SelFloating, ok);
        EXPECT_FALSE(sel().SelMarked);
        EXPECT_EQ(doc().modified, ok);
        expectPicture("rg", 0, 0, 'T');
        EXPECT_EQ(undoSize(), 2u);
        if (ok) {
            EXPECT_EQ(std::vector({rect().Left, rect().Top, rect().Right, rect().Bottom}),
                      std::vector({0, 0, 384, 384}));
            expectViews(true, true);
            editor->commitSelection();
            expectPicture("rb", 0, 0, 'T');
            EXPECT_EQ(undoSize(), 3u);
        } else {
            expectViews();
        }
    }
}

TEST_F(TextCaptureCommands, CaptureMakesTheSquareTheOpaqueIconAndRecordsEvenWhenLeft) {
    for (const bool taken : {true, false}) {
        startWithSize(0);
        draw("rT", 'T');
        recordPainting();
        mark(at(0), at(0), at(1), at(1));
        const Plane square = ScreenCapture::squareAt(numberedScreen(40, 40), QPoint(4, 5), 18);
        dialogs.captures.push_back(taken ? std::optional(square) : std::nullopt);
        operations().fxAction(FxAction::Capture);
        EXPECT_EQ(dialogs.captureSizes.back(), 16);
        EXPECT_FALSE(sel().exists());
        if (taken) {
            EXPECT_EQ(doc().PicMask, Plane(16, 16, kBlack));
            EXPECT_EQ(pixelAt(15, 15), std::pair(rgb(20, 21, 7), kBlack));
            EXPECT_EQ(pixelAt(0, 0), std::pair(rgb(5, 6, 7), kBlack));
        } else {
            expectPicture("r", 0, 0, 'T');
        }
        EXPECT_EQ(undoSize(), 3u);
        expectViews();
    }
}

} // namespace
