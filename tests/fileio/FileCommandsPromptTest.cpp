#include "FileCommandsFixture.h"

namespace {

class FileCommandsPromptTest : public FileCommandsFixture {
  protected:
    void SetUp() override {
        iconFile = writeFile("star.ico", icoFile({fortyColourIcon().stored}));
        edit(8, 8, rgb(50, 60, 70));
    }
    QString iconFile;
};

TEST_F(FileCommandsPromptTest, CancelStopsOpenNewAndClosingWithEverythingAsItWas) {
    const Plane image = editor->doc.PicImage;
    const std::string state = documentState();
    const std::size_t history = editor->undoRedo.UndoStack.size();

    editor->files.open();
    editor->newIcon(2);
    EXPECT_FALSE(editor->shutDown());
    editor->dropFiles({iconFile});

    EXPECT_EQ(dialogs.promptTexts,
              std::vector<QString>(4, QStringLiteral("Save changes to Untitled.ico?")));
    EXPECT_TRUE(dialogs.fileModes.empty());
    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->doc.PicImage, image);
    EXPECT_EQ(editor->doc.size, 32);
    EXPECT_EQ(editor->undoRedo.UndoStack.size(), history);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(FileCommandsPromptTest, NoDropsTheChangesAndTheOpenGoesOn) {
    dialogs.prompts.push_back(PromptAnswer::No);
    openThroughDialog(iconFile);
    EXPECT_EQ(editor->windowTitle, "Brevik - star.ico");
    expectPlanes(fortyColourIcon().mask, fortyColourIcon().image);
    EXPECT_FALSE(editor->doc.modified);
}

TEST_F(FileCommandsPromptTest, YesSavesUnderTheFileTitleOrThroughSaveAs) {
    // Untitled: Yes asks for a name first, then the open goes on.
    const QString saved = path("first.ico");
    dialogs.prompts.push_back(PromptAnswer::Yes);
    chooseNext(saved);
    openThroughDialog(iconFile);
    EXPECT_EQ(dialogs.fileModes,
              (std::vector<FileDialogMode>{FileDialogMode::SaveAs, FileDialogMode::Open}));
    EXPECT_EQ(editor->windowTitle, "Brevik - star.ico");
    EXPECT_EQ(editor->recent.paths(), (QStringList{iconFile, saved}));

    // With a title: the prompt names it and Yes writes it in place.
    edit(2, 3, rgb(11, 12, 13));
    const Plane edited = editor->doc.PicImage;
    dialogs.prompts.push_back(PromptAnswer::Yes);
    editor->newIcon(0);
    EXPECT_EQ(dialogs.promptTexts.back(), "Save changes to star.ico?");
    EXPECT_EQ(editor->doc.size, 16);
    EXPECT_EQ(editor->windowTitle, "Brevik - Untitled");
    openThroughDialog(iconFile);
    EXPECT_EQ(editor->doc.PicImage, edited);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(FileCommandsPromptTest, YesWhoseSaveAsIsCancelledAnswersTheLastSaveResult) {
    dialogs.prompts.push_back(PromptAnswer::Yes);
    editor->files.open();
    EXPECT_EQ(dialogs.fileModes, std::vector<FileDialogMode>{FileDialogMode::SaveAs});
    EXPECT_TRUE(editor->doc.modified);

    // After a successful save elsewhere the same cancelled Save As lets the
    // open go on, and the changes are dropped.
    editor->files.saveSucceeded = true;
    dialogs.prompts.push_back(PromptAnswer::Yes);
    dialogs.files.push_back(std::nullopt);
    openThroughDialog(iconFile);
    EXPECT_EQ(editor->windowTitle, "Brevik - star.ico");
    EXPECT_FALSE(editor->doc.modified);
}

TEST_F(FileCommandsPromptTest, AFailedSaveFromThePromptStopsTheCommand) {
    dialogs.prompts.push_back(PromptAnswer::Yes);
    chooseNext(path("missing/lost.ico"));
    editor->newIcon(0);
    expectMessages({brevikError("Unable to save the file lost.ico")});
    EXPECT_EQ(editor->doc.size, 32);
    EXPECT_TRUE(editor->doc.modified);
}

} // namespace
