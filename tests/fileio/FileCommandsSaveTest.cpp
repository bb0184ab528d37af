#include "FileCommandsFixture.h"

#include "fileio/BmpFile.h"
#include "fileio/IcoFile.h"

#include <QDir>

namespace {

class FileCommandsSaveTest : public FileCommandsFixture {};

TEST_F(FileCommandsSaveTest, SaveAsMakesTheNewFileTheDocumentsAndSaveWritesItInPlace) {
    edit(0, 0, rgb(10, 20, 30));
    editor->files().save(); // untitled: Save As, cancelled
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::SaveAs});
    EXPECT_FALSE(editor->files().saveSucceeded);
    EXPECT_TRUE(editor->doc().modified);

    const TestIcon icon(16, 8);
    const QString original = writeFile("forty.ico", icon.file());
    dialogs.prompts.push_back(PromptAnswer::No);
    openThroughDialog(original);
    int busy = 0, idle = 0;
    editor->services().setBusy = [&](bool on) { on ? ++busy : ++idle; };
    QDir(files.path()).mkdir("out");
    const QString copy = path("out/Copy.ico");
    chooseNext(copy);
    editor->files().saveAs();
    EXPECT_EQ(documentState(), stateOf(copy));
    EXPECT_TRUE(editor->files().saveSucceeded);
    EXPECT_EQ(editor->recent().paths(), (QStringList{copy, original}));
    EXPECT_EQ(editor->recentFolder(), path("out"));
    EXPECT_EQ(std::pair(busy, idle), std::pair(1, 1));

    edit(4, 4, rgb(4, 5, 6));
    EXPECT_TRUE(editor->files().save());
    EXPECT_EQ(dialogs.fileModes.size(), 3u) << "Save of a document with a file asks nothing";
    EXPECT_FALSE(editor->doc().modified);
    EXPECT_EQ(readFile(original), icon.file());
    EXPECT_EQ(readFile(copy), IcoFile::iconBytes(editor->doc().PicMask, editor->doc().PicImage, 256))
        << "forty colours are written at 8 bits";
}

TEST_F(FileCommandsSaveTest, BitmapAndCursorCopiesLeaveTheDocumentsFileAlone) {
    TestIcon icon(32, 24);
    const QString original = writeFile("many.ico", icon.file());
    openThroughDialog(original);
    edit(2, 2, rgb(7, 7, 7));
    const std::string state = documentState();
    chooseNext(path("many.bmp"));
    editor->files().saveAsBitmap();
    dialogs.hotSpots.push_back(HotSpot{5, 7});
    chooseNext(path("many.cur"));
    editor->files().saveAsCursor();
    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->recent().paths(), QStringList{original});
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(dialogs.fileModes,
              (std::vector<FileDialogMode>{FileDialogMode::Open, FileDialogMode::SaveAsBitmap,
                                           FileDialogMode::SaveAsCursor}));
    // The bitmap is the icon over white: transparent pixels white, inverting
    // ones white XOR their colour.
    Plane overWhite = editor->doc().PicImage;
    overWhite.setPixel(0, 0, kWhite);
    overWhite.setPixel(31, 0, kWhite);
    overWhite.setPixel(5, 0, kWhite ^ rgb(200, 10, 90));
    overWhite.setPixel(6, 0, kBlack);
    EXPECT_EQ(readFile(path("many.bmp")), BmpFile::bytes(overWhite, -1));
    EXPECT_EQ(readFile(path("many.cur")),
              IcoFile::cursorBytes(editor->doc().PicMask, editor->doc().PicImage, -1, 5, 7));
    EXPECT_TRUE(editor->files().save());
    EXPECT_EQ(readFile(original),
              IcoFile::iconBytes(editor->doc().PicMask, editor->doc().PicImage, -1));
}

TEST_F(FileCommandsSaveTest, TheHotSpotIsAskedFirstAndEitherCancelStops) {
    editor->files().saveAsCursor();
    dialogs.hotSpots.push_back(HotSpot{0, 0});
    editor->files().saveAsCursor();
    EXPECT_EQ(dialogs.hotSpotDialogs, 2);
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::SaveAsCursor});
    EXPECT_TRUE(QDir(files.path()).isEmpty());
}

TEST_F(FileCommandsSaveTest, AnImageOfAMultiImageFileSavesOnlyToAnotherFile) {
    const QByteArray bytes = icoFile({TestIcon(16, 4).stored, TestIcon(16, 8).stored});
    const QString source = writeFile("pair.ico", bytes);
    dialogs.iconLines.push_back(1);
    openThroughDialog(source);
    edit(6, 6, rgb(60, 70, 80));
    editor->files().saveSucceeded = true;
    // On purpose: the in-place rewrite is refused and the file stays.
    EXPECT_FALSE(editor->files().save());
    EXPECT_EQ(shown(), brevikError("Unable to save the file pair.ico"));
    EXPECT_FALSE(editor->files().saveSucceeded);
    EXPECT_TRUE(editor->doc().modified);
    EXPECT_EQ(readFile(source), bytes);

    const IconDescription chosen = editor->files().currentIcon;
    const QString copy = path("pair-copy.ico");
    chooseNext(copy);
    editor->files().saveAs();
    EXPECT_EQ(documentState(), stateOf(copy));
    EXPECT_EQ(readFile(copy), IcoFile(bytes).withImageReplaced(
                                  editor->doc().PicMask, editor->doc().PicImage, 256, chosen));
}

TEST_F(FileCommandsSaveTest, AFloatingSelectionIsCommittedBeforeABitmapIsWritten) {
    clipboard.picture = Plane(4, 4, rgb(0, 0, 255));
    editor->selection().Paste(false);
    ASSERT_TRUE(editor->selection().SelFloating);
    chooseNext(path("pasted.bmp"));
    editor->files().saveAsBitmap();
    EXPECT_FALSE(editor->selection().exists());
    EXPECT_EQ(hex(editor->doc().PicImage.pixel(3, 3)), hex(rgb(0, 0, 255)));
    EXPECT_EQ(readFile(path("pasted.bmp")).at(28), 4) << "blue, black and white fit 16 colours";
}

} // namespace
