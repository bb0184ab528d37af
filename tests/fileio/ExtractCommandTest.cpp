#include "ExtractFixtures.h"
#include "support/EditorFixture.h"
#include "support/MultiIcon.h"
#include "support/PeLibraryBuilder.h"

#include "fileio/IconSourceOpener.h"
#include "fileio/ShellLibrary.h"

#include <QDir>
#include <QFile>

namespace {

class ExtractCommandTest : public EditorFixture {
  protected:
    QString write(const QString& name, const QByteArray& bytes) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    // A pencil stroke, a second one undone: modified, with a redo entry.
    void editAndUndo() {
        drag(1, {{20, 20}, {40, 20}});
        drag(1, {{20, 60}, {40, 60}});
        editor->undo();
    }

    QTemporaryDir dir;
};

TEST_F(ExtractCommandTest, TheChosenIconBecomesA32x32DocumentWithAFreshHistory) {
    // Group 0 shows a grown 16 x 16, group 1 a shrunk 48 x 48, group 2 a
    // 32 x 32 picked over a 16 x 16; each has transparent pixels.
    const std::vector<QByteArray> shown{patternIcon(16, 1), patternIcon(48, 2), patternIcon(32, 3)};
    QString error;
    const QByteArray dll = PeLibraryBuilder{"x86_64",
                                            {{"1", joinIcons({shown[0]})},
                                             {"2", joinIcons({shown[1]})},
                                             {"3", joinIcons({patternIcon(16, 9), shown[2]})}}}
                               .build(error);
    ASSERT_FALSE(dll.isEmpty()) << error.toStdString();
    const QString library = write("library.dll", dll);

    const std::tuple<int, bool, int> cases[] = {{0, false, 2}, {2, true, 1}, {1, true, 0}};
    for (const auto& [sizeIndex, modified, index] : cases) {
        SCOPED_TRACE(testing::Message() << "size index " << sizeIndex << ", icon " << index);
        startWithSize(sizeIndex);
        dialogs = ScriptedDialogs();
        editor->extraction().startFile = "/start/shell32.dll";
        if (modified) {
            editAndUndo();
            dialogs.prompts.push_back(PromptAnswer::No);
        }
        dialogs.extractedIcons.push_back(ExtractedIconChoice{library, index});
        editor->extraction().run();

        const IconDocument& doc = editor->doc();
        const IconLoadResult want = shownAs(shown[index]);
        EXPECT_EQ(doc.size, 32);
        EXPECT_EQ(doc.PicMask, want.mask);
        EXPECT_EQ(doc.PicImage, want.image);
        Plane preview(32, 32, editor->canvas().buttonFace);
        drawMasked(preview, 0, 0, want.mask, want.image);
        EXPECT_EQ(editor->canvas().PicIcon, preview);
        EXPECT_EQ(editor->undoRedo().UndoStack.size(), 1u);
        EXPECT_TRUE(editor->undoRedo().RedoStack.empty());
        // The icon is in no file yet, so closing offers to save it.
        EXPECT_TRUE(doc.modified);
        EXPECT_EQ(doc.windowTitle, "Brevik - Untitled");
        EXPECT_EQ(dialogs.extractStartFiles, std::vector<QString>{"/start/shell32.dll"});
        // One prompt before the browser; New does not ask again.
        EXPECT_EQ(dialogs.promptTexts.size(), modified ? 1u : 0u);
    }
}

TEST_F(ExtractCommandTest, CancellingThePromptOrTheBrowserLeavesTheDocument) {
    for (const bool atPrompt : {true, false}) {
        startWithSize(0);
        dialogs = ScriptedDialogs();
        editAndUndo();
        const Plane image = editor->doc().PicImage;
        dialogs.prompts.push_back(atPrompt ? PromptAnswer::Cancel : PromptAnswer::No);
        editor->extraction().run();
        EXPECT_EQ(dialogs.extractStartFiles.size(), atPrompt ? 0u : 1u);
        EXPECT_EQ(editor->doc().size, 16);
        EXPECT_EQ(editor->doc().PicImage, image);
        EXPECT_EQ(editor->undoRedo().RedoStack.size(), 1u);
    }
}

TEST(ShellLibraryTest, WineBeforeThePrefixBeforeTheProgramsOwnLibrary) {
    const QStringList all = ShellLibrary::candidates("", "/home/ann", "/opt/brevik/bin");
    EXPECT_EQ(all.first(), "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll");
    EXPECT_TRUE(all.contains("/usr/lib/i386-linux-gnu/wine/i386-windows/shell32.dll"));
    EXPECT_EQ(
        all.mid(all.size() - 4),
        QStringList({"/home/ann/.wine/drive_c/windows/system32/shell32.dll",
                     "/home/ann/.wine/drive_c/windows/syswow64/shell32.dll",
                     "/opt/brevik/bin/brevik.icl", "/opt/brevik/bin/../share/brevik/brevik.icl"}));
    EXPECT_EQ(ShellLibrary::candidates("/p", "/home/ann", "/b").at(all.size() - 4),
              "/p/drive_c/windows/system32/shell32.dll");

    // Only the places under a folder of the test's own, so the machine's
    // own Wine does not answer.
    QTemporaryDir root;
    const QString prefix = root.filePath("wine"), program = root.filePath("bin");
    const auto local = [&] {
        return ShellLibrary::candidates(prefix, "", program).mid(all.size() - 4);
    };
    const auto place = [&](const QString& path) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    };
    EXPECT_EQ(ShellLibrary::firstExisting(local()), "");
    place(root.filePath("share/brevik/brevik.icl"));
    EXPECT_EQ(ShellLibrary::firstExisting(local()), root.filePath("share/brevik/brevik.icl"));
    place(program + "/brevik.icl");
    EXPECT_EQ(ShellLibrary::firstExisting(local()), program + "/brevik.icl");
    place(prefix + "/drive_c/windows/syswow64/shell32.dll");
    EXPECT_EQ(ShellLibrary::firstExisting(local()),
              prefix + "/drive_c/windows/syswow64/shell32.dll");
}

} // namespace

TEST(ShellLibraryTest, EveryIconOfWinesShellLibraryDecodes) {
    const QString path = "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll";
    if (!QFileInfo(path).isFile())
        GTEST_SKIP() << "Wine's shell32.dll is not installed";
    const auto opened = IconSourceOpener::openFile(path);
    ASSERT_TRUE(opened.source);
    EXPECT_GT(opened.source->count(), 100);
    for (int i = 0; i < opened.source->count(); ++i) {
        const IconLoadResult icon = opened.source->image(i);
        EXPECT_TRUE(icon.ok()) << i << " " << static_cast<int>(icon.fault);
    }
}
