#include "FileCommandsFixture.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

class FileCommandsEntryTest : public FileCommandsFixture {
  protected:
    QStringList storedKeys() const {
        return QSettings(settingsDir.filePath("Sollent.ini"), QSettings::IniFormat).allKeys();
    }
    QString iconFile(const QString& name) { return writeFile(name, TestIcon(16, 4).file()); }
};

TEST_F(FileCommandsEntryTest, TheCommandLineMustNameAnExistingIcoFile) {
    const QString good = iconFile("good.ico");
    writeFile("notes.txt", "text");
    writeFile("fake.ico", "not an icon at all");
    QDir(files.path()).mkdir("folder.ico");
    const std::string failed = brevikError("Failed to open file.");
    const std::tuple<QString, std::string> cases[] = {
        {"", ""},
        {path("missing.ico"), failed},
        {path("folder.ico"), brevikError("folder.ico is not a valid icon file.") + failed},
        {"\"" + good + "\"", failed},
        {good + " ", failed},
        {path("notes.txt"), brevikError("Invalid file extension.")},
        {path("fake.ico"), brevikError("fake.ico is not a valid icon file.") + failed},
    };
    for (const auto& [commandLine, messages] : cases) {
        SCOPED_TRACE(commandLine.toStdString());
        startWithSize(1);
        dialogs.messages.clear();
        editor->commandLineOpen(commandLine);
        EXPECT_EQ(shown(), messages);
        EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 0");
        EXPECT_TRUE(dialogs.fileModes.empty());
    }

    const QString capitals = iconFile("STAR.ICO");
    dialogs.messages.clear();
    editor->commandLineOpen(capitals);
    EXPECT_EQ(documentState(), stateOf(capitals));
    EXPECT_EQ(editor->recent().paths(), QStringList{capitals});
    EXPECT_TRUE(editor->recentFolder().isEmpty()) << "only a dialog moves the recent folder";
}

TEST_F(FileCommandsEntryTest, DroppingSeveralFilesOpensTheFirstAfterThePrompt) {
    const QString first = iconFile("first.ico"), second = iconFile("second.ico");
    edit(1, 1, rgb(5, 5, 5));
    editor->dropFiles({first, second}); // the prompt is cancelled
    EXPECT_TRUE(editor->doc().modified);
    dialogs.prompts.push_back(PromptAnswer::No);
    editor->dropFiles({first, second});
    EXPECT_EQ(dialogs.promptTexts.size(), 2u);
    EXPECT_EQ(documentState(), stateOf(first));
    EXPECT_TRUE(dialogs.fileModes.empty());
}

TEST_F(FileCommandsEntryTest, ARecentEntryOpensItsFileOrGoesWithAMessage) {
    const QString a = iconFile("a.ico"), b = iconFile("b.ico"), c = iconFile("c.ico");
    for (const QString& file : {a, b, c})
        openThroughDialog(file);
    editor->newIcon(1);
    editor->recentClick(3);
    EXPECT_EQ(documentState(), stateOf(a));
    EXPECT_EQ(editor->recent().paths(), (QStringList{a, c, b}));
    EXPECT_EQ(dialogs.fileModes.size(), 3u) << "no dialog for a recent entry";

    QFile::remove(c);
    editor->recentClick(2);
    EXPECT_EQ(shown(), brevikError("Unable to locate the file c.ico"));
    EXPECT_EQ(editor->recent().paths(), (QStringList{a, b}));
    EXPECT_EQ(documentState(), stateOf(a));

    writeFile("b.ico", "garbage");
    dialogs.messages.clear();
    editor->recentClick(2);
    EXPECT_EQ(shown(), brevikError("b.ico is not a valid icon file."));
    EXPECT_EQ(editor->recent().paths(), QStringList{a});

    edit(0, 0, rgb(1, 1, 1));
    editor->recentClick(1);
    EXPECT_EQ(dialogs.promptTexts.back(), "Save changes to a.ico?");
    EXPECT_TRUE(editor->doc().modified);
}

TEST_F(FileCommandsEntryTest, TheListAndFolderAreHandedOverFromOneRunToTheNext) {
    QDir(files.path()).mkdir("sub");
    const QString a = iconFile("a.ico"), b = iconFile("sub/b.ico");
    openThroughDialog(a);
    openThroughDialog(b);
    edit(0, 0, rgb(1, 1, 1));
    EXPECT_FALSE(editor->shutDown());
    EXPECT_TRUE(storedKeys().isEmpty()) << "a cancelled close writes nothing";
    dialogs.prompts.push_back(PromptAnswer::No);
    ASSERT_TRUE(editor->shutDown());

    startWithSize(1);
    EXPECT_EQ(editor->recent().paths(), (QStringList{b, a}));
    EXPECT_EQ(editor->recentFolder(), path("sub"));
    EXPECT_TRUE(storedKeys().isEmpty()) << "the next start takes them out of the store";
    dialogs.fileStartFolders.clear();
    openThroughDialog(a);
    chooseNext(path("sub/c.bmp"));
    editor->files().saveAsBitmap();
    editor->files().saveAs(); // cancelled
    EXPECT_EQ(dialogs.fileStartFolders,
              (std::vector<QString>{path("sub"), files.path(), path("sub")}));
}

} // namespace
