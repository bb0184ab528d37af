#include "FileCommandsFixture.h"

#include <QDir>
#include <QFileInfo>

namespace {

class FileCommandsSaveTest : public FileCommandsFixture {};

TEST_F(FileCommandsSaveTest, SavedIconsReopenWithEveryPixelAtTheirDepth) {
    const struct {
        const char* name;
        TestIcon icon;
        int bitCount;
    } cases[] = {{"many.ico", manyColourIcon(), 24}, {"forty.ico", fortyColourIcon(), 8}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        openThroughDialog(writeFile(c.name, icoFile({c.icon.stored})));
        const QString copy = path(QStringLiteral("copy-") + c.name);
        chooseNext(copy);
        editor->files.saveAs();
        const QByteArray written = readFile(copy);
        ASSERT_GT(written.size(), 22);
        EXPECT_EQ(u16At(written, 12), c.bitCount);

        editor->newIcon(1);
        openThroughDialog(copy);
        expectPlanes(c.icon.mask, c.icon.image);
        EXPECT_TRUE(dialogs.messages.empty());
    }
}

TEST_F(FileCommandsSaveTest, SaveAsMakesTheNewFileTheDocumentsAndSaveWritesItInPlace) {
    const TestIcon icon = fortyColourIcon();
    const QString original = writeFile("forty.ico", icoFile({icon.stored}));
    openThroughDialog(original);
    edit(3, 3, rgb(1, 2, 3));
    int busy = 0, idle = 0;
    editor->services.setBusy = [&](bool on) { on ? ++busy : ++idle; };

    QDir(files.path()).mkdir("out");
    const QString copy = path("out/Copy.ico");
    chooseNext(copy);
    editor->files.saveAs();
    EXPECT_EQ(documentState(),
              ("Brevik - Copy.ico | " + copy + " | Copy.ico | modified 0 | file 1").toStdString());
    EXPECT_TRUE(editor->files.saveSucceeded);
    EXPECT_EQ(editor->recent.paths(), (QStringList{copy, original}));
    EXPECT_EQ(editor->recentFolder, path("out"));
    EXPECT_EQ(dialogs.fileStartFolders.back(), files.path());
    EXPECT_EQ(busy, 1);
    EXPECT_EQ(idle, 1);
    EXPECT_EQ(readFile(original), icoFile({icon.stored})) << "the old file is left as it was";

    edit(4, 4, rgb(4, 5, 6));
    EXPECT_TRUE(editor->files.save());
    EXPECT_EQ(dialogs.fileModes.size(), 2u) << "Save of a document with a file asks nothing";
    EXPECT_FALSE(editor->doc.modified);
    const Plane image = editor->doc.PicImage, mask = editor->doc.PicMask;
    editor->newIcon(0);
    openThroughDialog(copy);
    EXPECT_EQ(editor->doc.PicImage, image);
    EXPECT_EQ(editor->doc.PicMask, mask);
    EXPECT_EQ(hex(image.pixel(4, 4)), hex(rgb(4, 5, 6)));
}

TEST_F(FileCommandsSaveTest, SaveOfAnUntitledDocumentIsSaveAs) {
    edit(0, 0, rgb(10, 20, 30));
    editor->files.save();
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::SaveAs});
    EXPECT_FALSE(editor->files.saveSucceeded);
    EXPECT_TRUE(editor->doc.modified);

    chooseNext(path("new.ico"));
    EXPECT_TRUE(editor->files.save());
    EXPECT_EQ(editor->windowTitle, "Brevik - new.ico");
    EXPECT_TRUE(QFileInfo(path("new.ico")).isFile());
}

TEST_F(FileCommandsSaveTest, BitmapAndCursorCopiesLeaveTheDocumentsFileAlone) {
    const TestIcon icon = manyColourIcon();
    const QString original = writeFile("many.ico", icoFile({icon.stored}));
    openThroughDialog(original);
    edit(2, 2, rgb(7, 7, 7));
    const std::string state = documentState();

    chooseNext(path("many.bmp"));
    editor->files.saveAsBitmap();
    dialogs.hotSpots.push_back(HotSpot{5, 7});
    chooseNext(path("many.cur"));
    editor->files.saveAsCursor();

    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->recent.paths(), QStringList{original});
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(dialogs.fileModes,
              (std::vector<FileDialogMode>{FileDialogMode::Open, FileDialogMode::SaveAsBitmap,
                                           FileDialogMode::SaveAsCursor}));

    // The bitmap is the icon over white: transparent pixels white, inverting
    // ones white XOR their colour.
    const Plane shown = bitmapPixels(readFile(path("many.bmp")));
    ASSERT_EQ(shown.width(), 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const Colour expected =
                (kWhite & editor->doc.PicMask.pixel(x, y)) ^ editor->doc.PicImage.pixel(x, y);
            ASSERT_EQ(hex(shown.pixel(x, y)), hex(expected)) << x << "," << y;
        }
    EXPECT_EQ(hex(shown.pixel(0, 0)), hex(kWhite));
    EXPECT_EQ(hex(shown.pixel(5, 0)), hex(kWhite ^ rgb(200, 10, 90)));
    EXPECT_EQ(hex(shown.pixel(2, 2)), hex(rgb(7, 7, 7)));

    const QByteArray cursor = readFile(path("many.cur"));
    ASSERT_GT(cursor.size(), 22);
    EXPECT_EQ(u16At(cursor, 2), 2);
    EXPECT_EQ(u16At(cursor, 10), 5);
    EXPECT_EQ(u16At(cursor, 12), 7);

    // A later Save still writes the icon.
    EXPECT_TRUE(editor->files.save());
    editor->newIcon(1);
    openThroughDialog(original);
    EXPECT_EQ(hex(editor->doc.PicImage.pixel(2, 2)), hex(rgb(7, 7, 7)));
}

TEST_F(FileCommandsSaveTest, TheHotSpotIsAskedFirstAndEitherCancelStops) {
    editor->files.saveAsCursor();
    EXPECT_EQ(dialogs.hotSpotDialogs, 1);
    EXPECT_TRUE(dialogs.fileModes.empty());

    dialogs.hotSpots.push_back(HotSpot{0, 0});
    editor->files.saveAsCursor();
    EXPECT_EQ(dialogs.hotSpotDialogs, 2);
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::SaveAsCursor});
    EXPECT_TRUE(QDir(files.path()).isEmpty());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(FileCommandsSaveTest, FailedWritesSayWhichAndChangeNothing) {
    const TestIcon icon = fortyColourIcon();
    const QString original = writeFile("forty.ico", icoFile({icon.stored}));
    openThroughDialog(original);
    edit(3, 3, rgb(1, 2, 3));
    editor->files.saveSucceeded = true;
    const std::string state = documentState();
    const QString nowhere = path("missing/folder/");

    chooseNext(nowhere + "lost.ico");
    editor->files.saveAs();
    EXPECT_FALSE(editor->files.saveSucceeded);
    chooseNext(nowhere + "lost.bmp");
    editor->files.saveAsBitmap();
    dialogs.hotSpots.push_back(HotSpot{1, 1});
    chooseNext(nowhere + "lost.cur");
    editor->files.saveAsCursor();

    expectMessages({brevikError("Unable to save the file lost.ico"),
                    brevikError("Failed to Save Icon As Bitmap."),
                    brevikError("Failed to Save Icon As Cursor.")});
    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->recent.paths(), QStringList{original});
    EXPECT_EQ(readFile(original), icoFile({icon.stored}));
}

TEST_F(FileCommandsSaveTest, AnImageOfAMultiImageFileSavesOnlyToAnotherFile) {
    const TestIcon first = sixteenColourIcon(16);
    const TestIcon second = fortyColourIcon();
    const QByteArray bytes = icoFile({first.stored, second.stored});
    const QString source = writeFile("pair.ico", bytes);
    dialogs.iconLines.push_back(1);
    openThroughDialog(source);
    edit(6, 6, rgb(60, 70, 80));
    editor->files.saveSucceeded = true;

    // Kept as it always was: the in-place rewrite fails, the file stays.
    EXPECT_FALSE(editor->files.save());
    expectMessages({brevikError("Unable to save the file pair.ico")});
    EXPECT_FALSE(editor->files.saveSucceeded);
    EXPECT_TRUE(editor->doc.modified);
    EXPECT_EQ(readFile(source), bytes);

    const QString copy = path("pair-copy.ico");
    chooseNext(copy);
    editor->files.saveAs();
    EXPECT_TRUE(editor->files.saveSucceeded);
    EXPECT_EQ(editor->windowTitle, "Brevik - pair-copy.ico");

    // The edited image comes first, the other follows unchanged.
    const Plane edited = editor->doc.PicImage;
    editor->newIcon(1);
    dialogs.iconLines.push_back(0);
    openThroughDialog(copy);
    EXPECT_EQ(editor->doc.PicImage, edited);
    dialogs.iconLines.push_back(1);
    openThroughDialog(copy);
    expectPlanes(first.mask, first.image);
    EXPECT_EQ(dialogs.iconListings.back(),
              (QStringList{"16 x 16 ... 256 Color", "16 x 16 ... 16 Color"}));
}

TEST_F(FileCommandsSaveTest, AFloatingSelectionIsCommittedBeforeABitmapIsWritten) {
    clipboard.picture = Plane(4, 4, rgb(0, 0, 255));
    editor->selection.Paste(false);
    ASSERT_TRUE(editor->selection.SelFloating);

    chooseNext(path("pasted.bmp"));
    editor->files.saveAsBitmap();

    EXPECT_FALSE(editor->selection.exists());
    EXPECT_EQ(hex(editor->doc.PicImage.pixel(3, 3)), hex(rgb(0, 0, 255)));
    const QByteArray written = readFile(path("pasted.bmp"));
    ASSERT_GT(written.size(), 54);
    EXPECT_EQ(u16At(written, 28), 4) << "blue, black and white fit the sixteen colours";
}

} // namespace
