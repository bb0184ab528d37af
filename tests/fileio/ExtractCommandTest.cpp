#include "ExtractFixtures.h"
#include "FileCommandsFixture.h"
#include "support/AniWriter.h"

#include "fileio/IconSourceOpener.h"
#include "fileio/ShellLibrary.h"

#include <QDir>

namespace {

using ExtractCommandTest = FileCommandsFixture;

TEST_F(ExtractCommandTest, TheChosenIconBecomesA32x32DocumentWithAFreshHistory) {
    // Step 0 shows a grown 16 x 16 and step 1 a shrunk 48 x 48, transparent pixels and all.
    const std::vector<QByteArray> shown{patternIcon(16, 1), patternIcon(48, 2)};
    const QString cursor = writeFile("walk.ani", AniWriter{shown, 2, {}}.bytes());

    // Size index before; the prompt's answer to a modified document (none:
    // unmodified); the icon chosen (-1: the browser is cancelled).
    const std::tuple<int, std::optional<PromptAnswer>, int> cases[] = {{0, std::nullopt, 1},
                                                                       {2, PromptAnswer::No, 0},
                                                                       {1, PromptAnswer::Cancel, 0},
                                                                       {1, PromptAnswer::No, -1}};
    for (const auto& [sizeIndex, answer, index] : cases) {
        SCOPED_TRACE(testing::Message() << "size index " << sizeIndex << ", icon " << index);
        startWithSize(sizeIndex);
        dialogs = ScriptedDialogs();
        editor->extraction().startFile = "/start/shell32.dll";
        if (answer) { // modified, with a redo entry
            drag(1, {{20, 20}, {40, 20}});
            drag(1, {{20, 60}, {40, 60}});
            editor->undo();
            dialogs.prompts.push_back(*answer);
        }
        if (index >= 0)
            dialogs.extractedIcons.push_back(ExtractedIconChoice{cursor, index});
        const IconDocument& doc = editor->doc();
        const Plane before = doc.PicImage;
        editor->extraction().run();

        const bool stopped = answer == PromptAnswer::Cancel;
        EXPECT_EQ(dialogs.extractStartFiles,
                  std::vector<QString>(stopped ? 0 : 1, "/start/shell32.dll"));
        // One prompt at most: New does not ask again.
        EXPECT_EQ(dialogs.promptTexts.size(), answer ? 1u : 0u);
        if (stopped || index < 0) {
            EXPECT_EQ(doc.PicImage, before);
            EXPECT_EQ(editor->undoRedo().RedoStack.size(), 1u);
            continue;
        }
        const IconLoadResult want = shownAs(shown[index]);
        EXPECT_EQ(doc.PicMask, want.mask);
        EXPECT_EQ(doc.PicImage, want.image);
        EXPECT_EQ(editor->undoRedo().UndoStack.size(), 1u);
        EXPECT_TRUE(editor->undoRedo().RedoStack.empty());
        // The icon is in no file yet, so closing offers to save it.
        EXPECT_TRUE(doc.modified);
    }
}

TEST(ShellLibraryTest, WineBeforeThePrefixBeforeTheProgramsOwnLibrary) {
    // Only the places under the test's own folder, so that the machine's
    // own Wine does not answer.
    QTemporaryDir root;
    const QString prefix = root.filePath("wine"), program = root.filePath("bin");
    const QStringList all = ShellLibrary::candidates(prefix, "/home/ann", program);
    EXPECT_EQ(all.first(), "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll");
    EXPECT_EQ(ShellLibrary::candidates("", "/home/ann", program).at(all.size() - 4),
              "/home/ann/.wine/drive_c/windows/system32/shell32.dll");
    const QStringList local = all.mid(all.size() - 4);
    const QString places[] = {root.filePath("share/brevik/brevik.icl"), program + "/brevik.icl",
                              prefix + "/drive_c/windows/syswow64/shell32.dll",
                              prefix + "/drive_c/windows/system32/shell32.dll"};
    EXPECT_EQ(ShellLibrary::firstExisting(local), "");
    for (const QString& place : places) {
        QDir().mkpath(QFileInfo(place).path());
        ASSERT_TRUE(QFile(place).open(QIODevice::WriteOnly));
        EXPECT_EQ(ShellLibrary::firstExisting(local), place);
    }
}

TEST(ShellLibraryTest, EveryIconOfWinesShellLibraryDecodes) {
    const QString path = "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll";
    if (!QFileInfo(path).isFile())
        GTEST_SKIP() << "Wine's shell32.dll is not installed";
    const auto opened = IconSourceOpener::openFile(path);
    ASSERT_TRUE(opened.source);
    EXPECT_GT(opened.source->count(), 100);
    for (int i = 0; i < opened.source->count(); ++i)
        EXPECT_TRUE(opened.source->image(i).ok()) << i;
}

} // namespace
