#include "FileCommandsFixture.h"

namespace {

class FileCommandsPromptTest : public FileCommandsFixture {
  protected:
    void SetUp() override { edit(8, 8, rgb(50, 60, 70)); }
    const TestIcon star{16, 8};
    const QString starFile = writeFile("star.ico", star.file());
};

TEST_F(FileCommandsPromptTest, CancelStopsOpenNewCloseAndDropsWithEverythingAsItWas) {
    const Plane image = editor->doc().PicImage;
    const std::string state = documentState();
    editor->files().open();
    editor->newIcon(2);
    EXPECT_FALSE(editor->shutDown());
    editor->dropFiles({starFile});
    EXPECT_EQ(dialogs.promptTexts, std::vector<QString>(4, "Save changes to Untitled.ico?"));
    EXPECT_TRUE(dialogs.fileModes.empty());
    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->doc().PicImage, image);
    EXPECT_EQ(editor->undoRedo().UndoStack.size(), 2u);
}

TEST_F(FileCommandsPromptTest, NoDropsTheChangesAndYesSavesUnderTheTitleOrThroughSaveAs) {
    dialogs.prompts.push_back(PromptAnswer::No);
    openThroughDialog(starFile);
    expectDocument(star);
    EXPECT_EQ(documentState(), stateOf(starFile));

    // Untitled, Yes asks for a name first; with a title, it writes in place.
    editor->newIcon(1);
    edit(1, 1, rgb(9, 9, 9));
    dialogs.prompts.push_back(PromptAnswer::Yes);
    chooseNext(path("first.ico"));
    openThroughDialog(starFile);
    EXPECT_EQ(dialogs.fileModes,
              (std::vector<FileDialogMode>{FileDialogMode::Open, FileDialogMode::SaveAs,
                                           FileDialogMode::Open}));
    EXPECT_EQ(editor->recent().paths(), (QStringList{starFile, path("first.ico")}));

    edit(2, 3, rgb(11, 12, 13));
    const Plane edited = editor->doc().PicImage;
    dialogs.prompts.push_back(PromptAnswer::Yes);
    editor->newIcon(0);
    EXPECT_EQ(dialogs.promptTexts.back(), "Save changes to star.ico?");
    EXPECT_EQ(editor->windowTitle(), "Brevik - Untitled");
    openThroughDialog(starFile);
    EXPECT_EQ(editor->doc().PicImage, edited);
    EXPECT_EQ(shown(), "");
}

TEST_F(FileCommandsPromptTest, YesGoesOnOnlyWhenTheSaveOrTheLastOneSucceeded) {
    dialogs.prompts.push_back(PromptAnswer::Yes);
    chooseNext(path("missing/lost.ico"));
    editor->newIcon(0);
    EXPECT_EQ(shown(), brevikError("Unable to save the file lost.ico"));
    EXPECT_TRUE(editor->doc().modified);

    // A cancelled Save As answers the last save's result.
    dialogs.prompts.push_back(PromptAnswer::Yes);
    editor->files().open();
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>(2, FileDialogMode::SaveAs));
    editor->files().saveSucceeded = true;
    dialogs.prompts.push_back(PromptAnswer::Yes);
    dialogs.files.push_back(std::nullopt);
    openThroughDialog(starFile);
    EXPECT_EQ(documentState(), stateOf(starFile));
}

} // namespace
