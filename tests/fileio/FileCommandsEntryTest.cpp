// The ways to a document, the prompt that guards every one of them, and the
// recent files and folder that carry over between runs.
#include "FileCommandsFixture.h"

#include "fileio/ModFileIO.h"

#include <QDir>
#include <QFile>

namespace {

class FileCommandsEntryTest : public FileCommandsFixture {
  protected:
    QString iconFile(const QString& name) { return writeFile(name, star.file()); }
    const TestIcon star{16, 8};
};

TEST_F(FileCommandsEntryTest, OneReadTakesTheSingleImageOrTheChosenLineOfSeveral) {
    const TestIcon icon(32, 24), large(48, 4), eight(16, 8);
    const QString single = writeFile("MANY.ICO", icon.file());
    const QString three =
        writeFile("three.ico", icoFile({TestIcon(16, 1).stored, eight.stored, large.stored}));
    const int reads = ModFileIO::readCount();
    editor->commandLineOpen(single);
    EXPECT_EQ(ModFileIO::readCount() - reads, 1); // one read tests, counts and loads
    EXPECT_EQ(editor->doc().PicMask, icon.mask);
    EXPECT_EQ(editor->doc().PicImage, icon.image);
    EXPECT_EQ(documentState(), stateOf(single));
    EXPECT_EQ(editor->recent().paths(), QStringList{single});
    EXPECT_TRUE(editor->recentFolder().isEmpty()) << "only a dialog moves the recent folder";
    EXPECT_EQ(editor->undoRedo().UndoStack.size(), 1u);
    EXPECT_FALSE(editor->files().multiImage);
    EXPECT_EQ(hex(editor->canvas().PicIcon.pixel(5, 0)), hex(kButtonFace ^ rgb(200, 10, 90)));

    dialogs.iconLines.push_back(2);
    openThroughDialog(three);
    EXPECT_EQ(ModFileIO::readCount() - reads, 2); // and lists
    EXPECT_EQ(dialogs.iconListings,
              (std::vector<QStringList>{
                  {"16 x 16 ... Monochrome", "16 x 16 ... 256 Color", "48 x 48 ... 16 Color"}}));
    EXPECT_EQ(editor->doc().PicMask, large.mask);
    EXPECT_EQ(editor->doc().PicImage, large.image);
    EXPECT_EQ(editor->files().currentIcon, (IconDescription{2, 4, 48, 48}));
    EXPECT_EQ(documentState(), stateOf(three));
    EXPECT_EQ(shown(), "");
    // A one-image file opened afterwards leaves the flag raised: only New lowers it.
    openThroughDialog(writeFile("one.ico", eight.file()));
    EXPECT_TRUE(editor->files().multiImage);
    editor->newIcon(1);
    EXPECT_FALSE(editor->files().multiImage);
}

TEST_F(FileCommandsEntryTest, ARefusedCommandLineOrFileIsNamedAndLeavesTheDocumentAlone) {
    const QString good = iconFile("good.ico");
    QDir(files.path()).mkdir("folder.ico");
    QByteArray badSecondOffset = icoFile({TestIcon(16, 4).stored, TestIcon(16, 4).stored});
    badSecondOffset[6 + 16 + 15] = 0x7F; // far past the end
    const std::string failed = brevikError("Failed to open file.");
    // The command line, the file written there first (if any), the messages.
    const std::tuple<QString, QByteArray, std::string> cases[] = {
        {"", {}, ""},
        {path("missing.ico"), {}, failed},
        {path("folder.ico"), {}, brevikError("folder.ico is not a valid icon file.") + failed},
        {"\"" + good + "\"", {}, failed},
        {good + " ", {}, failed},
        {path("notes.txt"), "text", brevikError("Invalid file extension.")},
        {path("broken.ico"), badSecondOffset,
         brevikError("An error occurred while loading broken.ico") + failed},
        {path("lying.ico"), TestIcon(32, 4).file().chopped(300),
         "! Sollent - Error: An unexpected error occurred while loading the icon.\n" + failed},
    };
    for (const auto& [commandLine, bytes, messages] : cases) {
        SCOPED_TRACE(commandLine.toStdString());
        if (!bytes.isEmpty())
            writeFile(QFileInfo(commandLine).fileName(), bytes);
        dialogs.messages.clear();
        editor->commandLineOpen(commandLine);
        EXPECT_EQ(shown(), messages);
        EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 0");
        EXPECT_EQ(editor->doc().PicImage, Plane(32, 32));
        EXPECT_TRUE(dialogs.fileModes.empty());
    }
    EXPECT_TRUE(editor->recent().paths().isEmpty());
}

TEST_F(FileCommandsEntryTest, CancelStopsEveryWayToReplaceTheDocumentWithEverythingAsItWas) {
    edit(8, 8, rgb(50, 60, 70));
    const Plane image = editor->doc().PicImage;
    const std::string state = documentState();
    editor->files().open();
    editor->newIcon(2);
    EXPECT_FALSE(editor->shutDown());
    EXPECT_FALSE(QFile::exists(settingsDir.filePath("Sollent.ini"))) << "nothing is stored";
    editor->dropFiles({iconFile("star.ico")});
    editor->recentClick(1); // asks even before it looks at the list
    EXPECT_EQ(dialogs.promptTexts, std::vector<QString>(5, "Save changes to Untitled.ico?"));
    EXPECT_TRUE(dialogs.fileModes.empty());
    EXPECT_EQ(documentState(), state);

    dialogs.prompts = {PromptAnswer::No};
    editor->files().open(); // the file dialog is cancelled
    EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 0");
    EXPECT_TRUE(editor->recentFolder().isEmpty());
    openThroughDialog(
        writeFile("two.ico", icoFile({TestIcon(16, 4).stored, TestIcon(32, 4).stored})));
    EXPECT_EQ(dialogs.iconListings.size(), 1u) << "the image choice is cancelled";
    EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 1");
    EXPECT_EQ(editor->doc().PicImage, image);
    EXPECT_EQ(editor->undoRedo().UndoStack.size(), 2u);
    EXPECT_TRUE(editor->recent().paths().isEmpty());
    EXPECT_FALSE(editor->files().multiImage);
}

TEST_F(FileCommandsEntryTest, NoDropsTheChangesAndYesSavesUnderTheTitleOrThroughSaveAs) {
    using enum FileDialogMode;
    const QString starFile = iconFile("star.ico");
    edit(8, 8, rgb(50, 60, 70));
    // Yes whose Save As is cancelled goes on only if the last save succeeded.
    dialogs.prompts = {PromptAnswer::Yes, PromptAnswer::No};
    editor->files().open();
    EXPECT_EQ(dialogs.fileModes, std::vector{SaveAs});
    editor->dropFiles({starFile, path("second.ico")}); // the first is opened
    EXPECT_EQ(editor->doc().PicMask, star.mask);
    EXPECT_EQ(editor->doc().PicImage, star.image);
    EXPECT_EQ(documentState(), stateOf(starFile));

    // Untitled, Yes asks for a name first; with a title, it writes in place.
    editor->newIcon(1);
    edit(1, 1, rgb(9, 9, 9));
    dialogs.prompts.push_back(PromptAnswer::Yes);
    chooseNext(path("first.ico"));
    openThroughDialog(starFile);
    EXPECT_EQ(dialogs.fileModes, (std::vector{SaveAs, SaveAs, Open}));
    EXPECT_EQ(editor->recent().paths(), (QStringList{starFile, path("first.ico")}));
    edit(2, 3, rgb(11, 12, 13));
    dialogs.prompts.push_back(PromptAnswer::Yes);
    editor->newIcon(0);
    EXPECT_EQ(dialogs.promptTexts.back(), "Save changes to star.ico?");
    EXPECT_EQ(dialogs.fileModes.size(), 3u);
    EXPECT_NE(readFile(starFile), star.file());
    EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 0");

    edit(3, 3, rgb(1, 1, 1)); // this time the last save succeeded
    dialogs.prompts.push_back(PromptAnswer::Yes);
    dialogs.files.push_back(std::nullopt);
    openThroughDialog(starFile);
    EXPECT_EQ(documentState(), stateOf(starFile));
    EXPECT_EQ(shown(), "");
}

TEST_F(FileCommandsEntryTest, TheRecentListAndFolderCarryOverAndAnEntryOpensItsFile) {
    QDir(files.path()).mkdir("sub");
    const QString a = iconFile("a.ico"), b = iconFile("sub/b.ico"), c = iconFile("c.ico");
    for (const QString& file : {c, a, b})
        openThroughDialog(file);
    ASSERT_TRUE(editor->shutDown());

    startWithSize(1);
    EXPECT_EQ(editor->recent().paths(), (QStringList{b, a, c}));
    EXPECT_EQ(editor->recentFolder(), path("sub"));
    dialogs.fileStartFolders.clear();
    editor->recentClick(3); // asks no file dialog
    EXPECT_EQ(documentState(), stateOf(c));
    EXPECT_EQ(editor->recent().paths(), (QStringList{c, b, a}));
    openThroughDialog(a);
    chooseNext(path("sub/c.bmp"));
    editor->files().saveAsBitmap();
    editor->files().saveAs(); // cancelled
    EXPECT_EQ(dialogs.fileStartFolders,
              (std::vector<QString>{path("sub"), files.path(), path("sub")}));

    QFile::remove(b);
    editor->recentClick(3);
    EXPECT_EQ(shown(), brevikError("Unable to locate the file b.ico"));
    EXPECT_EQ(editor->recent().paths(), (QStringList{a, c}));
    EXPECT_EQ(documentState(), stateOf(a));
    writeFile("c.ico", "garbage");
    dialogs.messages.clear();
    editor->recentClick(2);
    EXPECT_EQ(shown(), brevikError("c.ico is not a valid icon file."));
    EXPECT_EQ(editor->recent().paths(), QStringList{a});
}

} // namespace
