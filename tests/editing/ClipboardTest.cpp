#include "tools/ToolsFixture.h"

#include "editing/PasteFit.h"
#include "platform/Raster.h"
#include "support/AsciiArt.h"

namespace {

class ClipboardTest : public ToolsFixture {};

TEST_F(ClipboardTest, CopyCutPasteDeleteAndUndoFollowTheMenuAtEverySize) {
    const AsciiArt::Palette palette{{'.', kWhite}, {'#', kBlack}, {'r', kRed},
                                    {'b', kBlue},  {'c', kCyan},  {'n', rgb(254, 255, 255)}};
    for (int sizeIndex : {0, 1, 2}) {
        SCOPED_TRACE(sizeIndex);
        startWith(sizeIndex, "/.ri/.bT", 'g');
        clipboard = MemoryClipboard();
        EXPECT_EQ(enabling(), "------+");
        for (EditAction item : {Cut, Copy, Delete}) // greyed items do nothing when called
            editor->editAction(item);
        EXPECT_EQ(std::pair(clipboard.writes, undoSize()), std::pair(0, std::size_t{2}));

        // Pressed and released inside cells: both corners snap to the grid.
        mark(at(1), at(1), at(3, zoom() - 1), at(3));
        EXPECT_EQ(enabling(), "++--+++");
        editor->editAction(Copy);
        // Transparent pixels go to the clipboard white, an inverting one as
        // white XOR its colour; the selection stays and nothing is recorded.
        const Plane copied = AsciiArt::toPlane({"rc", "b."}, palette);
        EXPECT_EQ(clipboard.picture, copied);
        editor->editAction(Cut);
        EXPECT_EQ(enabling(), "--++--+");
        EXPECT_EQ(std::pair(clipboard.picture, clipboard.writes), std::pair(copied, 2));
        expectPicture("TT/TT", 1, 1, 'g');

        editor->editAction(Paste);
        EXPECT_EQ(enabling(), "+++++++");
        expectPicture("TT/TT", 1, 1, 'g'); // floating, not yet in the document
        expectViews(true, true);
        // Undo returns to the picture before the paste; Redo brings it in.
        editor->editAction(Undo);
        EXPECT_EQ(enabling(), "--++--+");
        expectPicture("TT/TT", 1, 1, 'g');
        expectViews(false, false);
        editor->editAction(Redo);
        expectPicture("rc./bTT/.TT", 0, 0, 'g');

        // Delete clears exactly the marked area, and copies nothing.
        mark(at(0), at(0), at(1, zoom() - 1), at(1));
        editor->editAction(Delete);
        EXPECT_EQ(std::pair(clipboard.writes, undoSize()), std::pair(2, std::size_t{5}));
        expectPicture("Tc./bTT/.TT", 0, 0, 'g');
        expectViews(false, false);

        // Cancel in the paste dialog changes nothing; a picture without
        // pixels, however tall it claims to be, commits the selection and
        // floats an empty one, which loses nothing.
        mark(at(1), at(1), at(3), at(3));
        dialogs.pasteDialogs = 0;
        clipboard.picture = Plane(49, 49, kBlue); // no scripted answer: Cancel
        editor->editAction(PasteOpaque);
        EXPECT_EQ(std::pair(dialogs.pasteDialogs, sel().SelMarked), std::pair(1, true));
        expectViews(false, true);
        clipboard.picture = Plane(0, 40);
        editor->editAction(Paste);
        editor->editAction(Paste);
        EXPECT_EQ(std::pair(dialogs.pasteDialogs, sel().SelFloating), std::pair(1, true));
        EXPECT_EQ(undoSize(), 6u) << "an empty paste, committed, records a state";
        expectPicture("Tc./bTT/.TT", 0, 0, 'g');
        expectViews(true, false);

        // Only pure white turns transparent, and only in a plain paste.
        clipboard.picture = AsciiArt::toPlane({".rn"}, palette);
        for (const auto& [item, image, mask] :
             {std::tuple(Paste, "#rn", ".##"), std::tuple(PasteOpaque, ".rn", "###")}) {
            editor->editAction(item);
            EXPECT_EQ(AsciiArt::fromPlane(doc().PicSelImage, palette), AsciiArt::text({image}));
            EXPECT_EQ(AsciiArt::fromPlane(doc().PicSelMask, palette), AsciiArt::text({mask}));
        }
    }
}

// Red left half, blue right half, a white top-left pixel unless one wide.
TEST_F(ClipboardTest, OnlyAPictureLargerThanTheIconAsksAndIsShrunkAsChosen) {
    const struct {
        int sizeIndex, width, height, option, dialogs, fitWidth, fitHeight;
    } cases[] = {
        {1, 32, 32, 0, 0, 32, 32}, {1, 33, 1, 0, 1, 32, 32}, {1, 1, 33, 1, 1, 1, 32},
        {0, 20, 10, 0, 1, 16, 16}, {0, 20, 10, 1, 1, 16, 8}, {1, 4000, 4000, 1, 1, 32, 32},
        {1, 1, 1, 0, 0, 1, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " x " << c.height << " option " << c.option);
        startWithSize(c.sizeIndex);
        dialogs.pasteDialogs = 0;
        dialogs.pasteOptions = {c.option};
        clipboard.picture = Plane(c.width, c.height, kBlue);
        fillRect(clipboard.picture, 0, 0, c.width / 2, c.height, kRed);
        if (c.width > 1)
            clipboard.picture.setPixel(0, 0, kWhite);
        editor->editAction(Paste);

        EXPECT_EQ(dialogs.pasteDialogs, c.dialogs);
        EXPECT_TRUE(doc().modified);
        const int w = doc().PicSelMask.width(), h = doc().PicSelMask.height();
        EXPECT_EQ(std::tuple(w, h, rect().Right, rect().Bottom),
                  std::tuple(c.fitWidth, c.fitHeight, w * doc().zoom, h * doc().zoom));
        // Shrunk, not cut: the white corner stays transparent, and the blue
        // half reaches the middle.
        EXPECT_EQ(doc().PicSelMask.pixel(0, 0), c.width > 1 ? kWhite : kBlack);
        EXPECT_EQ(doc().PicSelImage.pixel(w / 2, h - 1), kBlue);
    }
}

// In order: taller than wide, so the height is tested; one pixel too large;
// 9.795 rounding up; the short side never below one pixel, either way round.
// The last three take steps that end a hair off the exact quotient: 4.5005,
// 7.4994 and 11.4958. One division (4.5, 7.5, 11.51) would round to 4 or 5, 8
// and 12; the same steps in double precision to 4, 7 and 12.
TEST(PasteFitTest, ShrinksTheLargerSideToTheIconKeepingTheAspect) {
    const struct {
        int width, height, icon, fitWidth, fitHeight;
    } cases[] = {{10, 20, 16, 8, 16},  {17, 17, 16, 16, 16}, {49, 10, 48, 48, 10},
                 {1000, 1, 48, 48, 1}, {1, 1000, 16, 1, 16}, {32, 9, 16, 16, 5},
                 {32, 15, 16, 16, 7},  {57, 41, 16, 16, 11}};
    for (const auto& c : cases) {
        const PasteFit fit = PasteFit::keepingAspect(c.width, c.height, c.icon, c.icon);
        EXPECT_EQ(std::pair(fit.width, fit.height), std::pair(c.fitWidth, c.fitHeight))
            << c.width << " x " << c.height;
    }
}

} // namespace
