#include "SelectionFixture.h"

namespace {

class ClipboardTest : public SelectionFixture {};

TEST_F(ClipboardTest, CopyPutsTransparentPixelsOnTheClipboardAsWhite) {
    paint(0, 0, kRed);
    paintInverting(2, 0, kBlue);
    recordPainting();
    mark(0, 0, 36, 12); // icon pixels (0, 0) to (2, 0)
    editor->editAction(4);

    ASSERT_EQ(clipboard.writes, 1);
    ASSERT_EQ(clipboard.picture.width(), 3);
    ASSERT_EQ(clipboard.picture.height(), 1);
    EXPECT_EQ(hex(clipboard.picture.pixel(0, 0)), hex(kRed));
    EXPECT_EQ(hex(clipboard.picture.pixel(1, 0)), hex(kWhite));
    // An inverting pixel shows white XOR its colour.
    EXPECT_EQ(hex(clipboard.picture.pixel(2, 0)), hex(rgb(255, 255, 0)));
    // Copy changes nothing else.
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, true));
}

TEST_F(ClipboardTest, CutThenPasteRoundTripKeepsColoursAndTransparency) {
    paint(4, 4, kRed);
    paint(5, 4, kGreen);
    paint(5, 5, kBlue); // (4, 5) stays transparent
    recordPainting();
    mark(48, 48, 72, 72);
    editor->editAction(3);

    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(undoSize(), 3u);
    for (auto [x, y] : {std::pair{4, 4}, {5, 4}, {4, 5}, {5, 5}})
        EXPECT_TRUE(doc().isTransparent(x, y)) << x << "," << y;
    ASSERT_EQ(clipboard.picture.width(), 2);
    EXPECT_EQ(clipboard.picture.pixel(0, 0), kRed);
    EXPECT_EQ(clipboard.picture.pixel(1, 0), kGreen);
    EXPECT_EQ(clipboard.picture.pixel(0, 1), kWhite);
    EXPECT_EQ(clipboard.picture.pixel(1, 1), kBlue);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));

    editor->editAction(5);
    EXPECT_TRUE(sel().SelFloating);
    EXPECT_EQ(sel().SelRect.Left, 0);
    EXPECT_EQ(sel().SelRect.Right, 24);
    EXPECT_EQ(sel().SelRect.Bottom, 24);
    EXPECT_EQ(dialogs.pasteDialogs, 0);
    EXPECT_EQ(undoSize(), 3u);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, true));
    EXPECT_EQ(editor->canvas.PicMain.pixel(6, 6), kRed);
    EXPECT_EQ(editor->canvas.PicIcon, expectedPreview(true));

    editor->editAction(9);
    EXPECT_EQ(undoSize(), 4u);
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kRed, kBlack));
    EXPECT_EQ(pixelAt(1, 0), std::make_pair(kGreen, kBlack));
    EXPECT_TRUE(doc().isTransparent(0, 1));
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kBlue, kBlack));
}

TEST_F(ClipboardTest, PlainPasteMakesWhiteTransparentAndOpaquePasteKeepsIt) {
    const struct {
        const char* name;
        int item;
        Colour whiteMask;
    } cases[] = {{"Paste", 5, kWhite}, {"Paste Opaque", 6, kBlack}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(1);
        clipboard.picture = Plane(4, 4, kWhite);
        clipboard.picture.setPixel(1, 1, kRed);
        clipboard.picture.setPixel(2, 2, rgb(254, 255, 255)); // nearly white stays
        editor->editAction(c.item);

        ASSERT_TRUE(sel().SelFloating);
        const Plane& mask = doc().PicSelMask;
        const Plane& image = doc().PicSelImage;
        ASSERT_EQ(mask.width(), 4);
        EXPECT_EQ(mask.pixel(0, 0), c.whiteMask);
        EXPECT_EQ(image.pixel(0, 0), c.whiteMask == kWhite ? kBlack : kWhite);
        EXPECT_EQ(mask.pixel(1, 1), kBlack);
        EXPECT_EQ(image.pixel(1, 1), kRed);
        EXPECT_EQ(mask.pixel(2, 2), kBlack);
        EXPECT_EQ(image.pixel(2, 2), rgb(254, 255, 255));
        EXPECT_TRUE(doc().modified);
        EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(true, true));
    }
}

TEST_F(ClipboardTest, UndoAfterPasteReturnsToThePictureBeforeIt) {
    paint(0, 0, kRed);
    recordPainting();
    const Plane image = doc().PicImage, mask = doc().PicMask;
    putOnClipboard(2, 2, kBlue);
    editor->editAction(5);
    EXPECT_EQ(doc().PicImage, image); // floating, not yet in the document

    editor->editAction(0);
    EXPECT_FALSE(sel().exists());
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(doc().PicMask, mask);
    EXPECT_EQ(undoSize(), 2u);
    EXPECT_EQ(editor->undoRedo.RedoStack.size(), 1u);
    EXPECT_EQ(editor->canvas.PicMain, expectedCanvas(false, false));

    editor->editAction(1);
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kBlue, kBlack));
    EXPECT_EQ(pixelAt(1, 1), std::make_pair(kBlue, kBlack));
}

TEST_F(ClipboardTest, TooLargePicturesAreShrunkAsTheUserChooses) {
    // 20 x 10, red on the left half and blue on the right, into 16 x 16.
    const struct {
        const char* name;
        int option, width, height;
    } cases[] = {{"Shrink To Fit", 0, 16, 16}, {"Shrink To Fit (Keep Aspect)", 1, 16, 8}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        startWithSize(0);
        dialogs.pasteDialogs = 0;
        clipboard.picture = Plane(20, 10, kRed);
        for (int y = 0; y < 10; ++y)
            for (int x = 10; x < 20; ++x)
                clipboard.picture.setPixel(x, y, kBlue);
        dialogs.pasteOptions = {c.option};
        editor->editAction(5);

        EXPECT_EQ(dialogs.pasteDialogs, 1);
        EXPECT_EQ(sel().PasteChoice, c.option);
        ASSERT_TRUE(sel().SelFloating);
        EXPECT_EQ(doc().PicSelMask.width(), c.width);
        EXPECT_EQ(doc().PicSelMask.height(), c.height);
        EXPECT_EQ(sel().SelRect.Right, 24 * c.width);
        EXPECT_EQ(sel().SelRect.Bottom, 24 * c.height);
        // Nearest-pixel: column 7 samples source column 8, column 8 column 10.
        EXPECT_EQ(doc().PicSelImage.pixel(7, 0), kRed);
        EXPECT_EQ(doc().PicSelImage.pixel(8, c.height - 1), kBlue);
    }
}

TEST_F(ClipboardTest, AskingOnlyWhenThePictureIsLargerThanTheIcon) {
    const struct {
        int width, height, dialogs;
    } cases[] = {{32, 32, 0}, {1, 32, 0}, {33, 1, 1}, {1, 33, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " x " << c.height);
        startWithSize(1);
        dialogs.pasteDialogs = 0;
        putOnClipboard(c.width, c.height, kGreen);
        dialogs.pasteOptions = {0};
        editor->editAction(5);
        EXPECT_EQ(dialogs.pasteDialogs, c.dialogs);
        EXPECT_TRUE(sel().SelFloating);
    }
}

TEST_F(ClipboardTest, CancelInThePasteDialogKeepsSelectionAndDocument) {
    paint(3, 3, kRed);
    recordPainting();
    mark(24, 24, 60, 60);
    const Plane image = doc().PicImage, mask = doc().PicMask, canvas = editor->canvas.PicMain;
    const Plane selImage = doc().PicSelImage;
    putOnClipboard(40, 40, kBlue); // no scripted answer: the dialog is cancelled
    editor->editAction(5);

    EXPECT_EQ(dialogs.pasteDialogs, 1);
    EXPECT_EQ(sel().PasteChoice, -1);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(sel().SelRect.Left, 24);
    EXPECT_EQ(sel().SelRect.Right, 60);
    EXPECT_EQ(doc().PicSelImage, selImage);
    EXPECT_EQ(doc().PicImage, image);
    EXPECT_EQ(doc().PicMask, mask);
    EXPECT_EQ(editor->canvas.PicMain, canvas);
    EXPECT_EQ(undoSize(), 2u);
}

TEST_F(ClipboardTest, PasteWithAnEmptyClipboardChangesNothing) {
    mark(24, 24, 60, 60);
    const Plane canvas = editor->canvas.PicMain;
    editor->editAction(5);
    editor->editAction(6);
    EXPECT_EQ(dialogs.pasteDialogs, 0);
    EXPECT_TRUE(sel().SelMarked);
    EXPECT_EQ(sel().SelRect.Left, 24);
    EXPECT_EQ(editor->canvas.PicMain, canvas);
    EXPECT_EQ(undoSize(), 1u);
}

TEST_F(ClipboardTest, OnePixelPictures) {
    putOnClipboard(1, 1, kRed);
    editor->editAction(5);
    EXPECT_EQ(sel().SelRect.Right, 12);
    EXPECT_EQ(sel().SelRect.Bottom, 12);
    EXPECT_EQ(editor->canvas.PicMain.pixel(6, 6), kRed);
    editor->editAction(9);
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kRed, kBlack));
    EXPECT_TRUE(doc().isTransparent(1, 0));

    // A white pixel pastes as a transparent one: nothing shows.
    putOnClipboard(1, 1, kWhite);
    editor->editAction(5);
    EXPECT_EQ(doc().PicSelMask.pixel(0, 0), kWhite);
    editor->editAction(9);
    EXPECT_EQ(pixelAt(0, 0), std::make_pair(kRed, kBlack));
    EXPECT_EQ(undoSize(), 3u);
}

TEST_F(ClipboardTest, AHugePictureIsShrunkToTheIcon) {
    clipboard.picture = Plane(4000, 4000, kRed);
    clipboard.picture.setPixel(0, 0, kWhite);
    for (int option : {0, 1}) {
        SCOPED_TRACE(option);
        dialogs.pasteOptions = {option};
        editor->editAction(5);
        ASSERT_TRUE(sel().SelFloating);
        EXPECT_EQ(doc().PicSelMask.width(), 32);
        EXPECT_EQ(doc().PicSelMask.height(), 32);
        // The white corner pixel is what the corner samples.
        EXPECT_EQ(doc().PicSelMask.pixel(0, 0), kWhite);
        EXPECT_EQ(doc().PicSelImage.pixel(31, 31), kRed);
        EXPECT_EQ(doc().PicSelMask.pixel(1, 0), kBlack);
    }
}

} // namespace
