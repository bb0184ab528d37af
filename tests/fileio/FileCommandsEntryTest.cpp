#include "FileCommandsFixture.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

// The ways a file reaches Open without its dialog (command line, drops,
// recent entries) and the recent files and folder kept between runs.
class FileCommandsEntryTest : public FileCommandsFixture {
  protected:
    QString storeFile() const { return settingsDir.filePath("Sollent.ini"); }
    QStringList storedKeys() const {
        QSettings settings(storeFile(), QSettings::IniFormat);
        return settings.allKeys();
    }
    QString iconFile(const QString& name) {
        return writeFile(name, icoFile({sixteenColourIcon(16).stored}));
    }
};

TEST_F(FileCommandsEntryTest, TheCommandLineMustNameAnExistingIcoFile) {
    const QString good = iconFile("good.ico");
    writeFile("notes.txt", "text");
    writeFile("fake.ico", "not an icon at all");
    QDir(files.path()).mkdir("folder.ico");
    const struct {
        QString commandLine;
        std::vector<ScriptedDialogs::Message> messages;
    } cases[] = {
        {"", {}},
        {path("missing.ico"), {brevikError("Failed to open file.")}},
        {path("folder.ico"), {brevikError("Failed to open file.")}},
        {"\"" + good + "\"", {brevikError("Failed to open file.")}},
        {good + " ", {brevikError("Failed to open file.")}},
        {path("notes.txt"), {brevikError("Invalid file extension.")}},
        {path("fake.ico"),
         {brevikError("fake.ico is not a valid icon file."), brevikError("Failed to open file.")}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.commandLine.toStdString());
        startWithSize(1);
        editor->commandLineOpen(c.commandLine);
        ASSERT_EQ(dialogs.messages.size(), c.messages.size());
        for (std::size_t i = 0; i < c.messages.size(); ++i) {
            EXPECT_EQ(dialogs.messages[i].title, c.messages[i].title);
            EXPECT_EQ(dialogs.messages[i].text, c.messages[i].text);
            EXPECT_EQ(dialogs.messages[i].icon, MessageIcon::Exclamation);
        }
        EXPECT_EQ(documentState(), "Brevik - Untitled |  |  | modified 0 | file 0");
        EXPECT_TRUE(dialogs.fileModes.empty());
        dialogs.messages.clear();
    }
}

TEST_F(FileCommandsEntryTest, ACommandLineInCapitalsOpensWithoutADialog) {
    const QString file = iconFile("STAR.ICO");
    editor->commandLineOpen(file);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(dialogs.fileModes.empty());
    EXPECT_EQ(documentState(),
              ("Brevik - STAR.ICO | " + file + " | STAR.ICO | modified 0 | file 1").toStdString());
    expectPlanes(sixteenColourIcon(16).mask, sixteenColourIcon(16).image);
    EXPECT_EQ(editor->recent.paths(), QStringList{file});
    EXPECT_TRUE(editor->recentFolder.isEmpty()) << "only a dialog moves the recent folder";
}

TEST_F(FileCommandsEntryTest, DroppingSeveralFilesOpensTheFirstAfterThePrompt) {
    const QString first = iconFile("first.ico");
    const QString second = writeFile("second.ico", icoFile({fortyColourIcon().stored}));
    edit(1, 1, rgb(5, 5, 5));

    editor->dropFiles({first, second}); // the prompt is cancelled
    EXPECT_EQ(editor->windowTitle, "Brevik - Untitled");
    EXPECT_TRUE(editor->doc.modified);

    dialogs.prompts.push_back(PromptAnswer::No);
    editor->dropFiles({first, second});
    EXPECT_EQ(dialogs.promptTexts.size(), 2u);
    EXPECT_EQ(
        documentState(),
        ("Brevik - first.ico | " + first + " | first.ico | modified 0 | file 1").toStdString());
    EXPECT_EQ(editor->recent.paths(), QStringList{first});
    EXPECT_TRUE(dialogs.fileModes.empty());
}

TEST_F(FileCommandsEntryTest, OpenedFilesFillTheListNewestFirstAndAFifthDropsTheOldest) {
    QStringList opened;
    for (const char* name : {"a.ico", "b.ico", "c.ico", "d.ico", "e.ico"}) {
        opened.prepend(iconFile(name));
        openThroughDialog(opened.first());
    }
    EXPECT_EQ(editor->recent.paths(), opened.mid(0, 4));
    EXPECT_EQ(editor->recent.MnuRecent[1].caption, "&1 e.ico");
    EXPECT_EQ(editor->recent.MnuRecent[4].caption, "&4 b.ico");

    // The same file named in other letter case is the same entry.
    const QString shouting = iconFile("C.ICO");
    openThroughDialog(shouting);
    EXPECT_EQ(editor->recent.paths(), (QStringList{shouting, opened[0], opened[1], opened[3]}));
}

TEST_F(FileCommandsEntryTest, ARecentEntryOpensItsFileOrGoesWithAMessage) {
    const QString a = iconFile("a.ico"), b = iconFile("b.ico"), c = iconFile("c.ico");
    for (const QString& file : {a, b, c})
        openThroughDialog(file);
    editor->newIcon(1);

    editor->recentClick(3);
    EXPECT_EQ(editor->windowTitle, "Brevik - a.ico");
    EXPECT_EQ(editor->recent.paths(), (QStringList{a, c, b}));
    EXPECT_EQ(dialogs.fileModes.size(), 3u) << "no dialog for a recent entry";

    // Deleted since: named in the message, and the others close up.
    QFile::remove(c);
    editor->recentClick(2);
    expectMessages({brevikError("Unable to locate the file c.ico")});
    EXPECT_EQ(editor->recent.paths(), (QStringList{a, b}));
    EXPECT_EQ(editor->recent.MnuRecent[2].caption, "&2 b.ico");
    EXPECT_FALSE(editor->recent.MnuRecent[3].visible);
    EXPECT_EQ(editor->windowTitle, "Brevik - a.ico");

    // No longer an icon: the open's own message, and the entry goes.
    writeFile("b.ico", "garbage");
    dialogs.messages.clear();
    editor->recentClick(2);
    expectMessages({brevikError("b.ico is not a valid icon file.")});
    EXPECT_EQ(editor->recent.paths(), QStringList{a});
    EXPECT_TRUE(editor->recent.MnuRecent[0].visible);

    // Unsaved changes are offered first; Cancel keeps everything.
    edit(0, 0, rgb(1, 1, 1));
    editor->recentClick(1);
    EXPECT_EQ(dialogs.promptTexts.back(), "Save changes to a.ico?");
    EXPECT_TRUE(editor->doc.modified);
    EXPECT_EQ(editor->recent.paths(), QStringList{a});
}

TEST_F(FileCommandsEntryTest, TheListAndFolderAreHandedOverFromOneRunToTheNext) {
    QDir(files.path()).mkdir("sub");
    const QString a = iconFile("a.ico");
    const QString b = iconFile("sub/b.ico");
    openThroughDialog(a);
    openThroughDialog(b);
    ASSERT_TRUE(editor->shutDown());
    {
        QSettings settings(storeFile(), QSettings::IniFormat);
        EXPECT_EQ(settings.value("Recent Files/1.").toString(), b);
        EXPECT_EQ(settings.value("Recent Files/2.").toString(), a);
        EXPECT_EQ(settings.value("Recent Folder/Folder").toString(), path("sub"));
    }

    startWithSize(1);
    EXPECT_EQ(editor->recent.paths(), (QStringList{b, a}));
    EXPECT_EQ(editor->recent.MnuRecent[1].caption, "&1 b.ico");
    EXPECT_EQ(editor->recentFolder, path("sub"));
    EXPECT_TRUE(storedKeys().isEmpty()) << storedKeys().join(", ").toStdString();

    // The dialogs start in the folder handed over, then in the last one used.
    dialogs.fileStartFolders.clear();
    openThroughDialog(a);
    chooseNext(path("sub/c.bmp"));
    editor->files.saveAsBitmap();
    editor->files.saveAs(); // cancelled
    EXPECT_EQ(dialogs.fileStartFolders,
              (std::vector<QString>{path("sub"), files.path(), path("sub")}));
}

TEST_F(FileCommandsEntryTest, ACancelledCloseWritesNothing) {
    openThroughDialog(iconFile("a.ico"));
    edit(0, 0, rgb(1, 1, 1));
    EXPECT_FALSE(editor->shutDown());
    EXPECT_TRUE(storedKeys().isEmpty());
    dialogs.prompts.push_back(PromptAnswer::No);
    EXPECT_TRUE(editor->shutDown());
    EXPECT_EQ(storedKeys().size(), 2);
}

} // namespace
