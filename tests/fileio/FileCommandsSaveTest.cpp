// Saves that succeed, and saves that fail half way, as on a full disk, or in a
// folder that takes no new file; then the file on disk stays exactly as it was.
#include "FileCommandsFixture.h"

#include "fileio/BmpFile.h"
#include "fileio/IcoFile.h"

#include <QDir>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The fault a save meets while this is alive. On a full disk no file of this
// process may grow past 64 bytes: a write fails half way with EFBIG, with no
// need for a small file system or root. In a folder that takes no new file,
// its permissions bind root only after it gives up its effective user id,
// which it takes back afterwards.
struct SaveFault {
    explicit SaveFault(bool fullDisk) : asUser(!fullDisk && geteuid() == 0) {
        getrlimit(RLIMIT_FSIZE, &saved);
        rlimit lowered = saved;
        lowered.rlim_cur = fullDisk ? 64 : saved.rlim_cur;
        setrlimit(RLIMIT_FSIZE, &lowered);
        EXPECT_EQ(asUser ? seteuid(65534) : 0, 0);
    }
    ~SaveFault() {
        EXPECT_EQ(asUser ? seteuid(0) : 0, 0);
        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, handler);
    }
    const bool asUser;
    void (*handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit saved{};
};

QStringList entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

using FileCommandsSaveTest = FileCommandsFixture;

TEST_F(FileCommandsSaveTest, SaveAsMakesTheNewFileTheDocumentsAndSaveWritesItInPlace) {
    const TestIcon icon(16, 8);
    const QString original = writeFile("forty.ico", icon.file());
    openThroughDialog(original);
    edit(0, 0, rgb(10, 20, 30));
    int busy = 0, idle = 0;
    editor->services().setBusy = [&](bool on) { on ? ++busy : ++idle; };
    const QString copy = path("Copy.ico");
    chooseNext(copy);
    editor->files().saveAs();
    EXPECT_EQ(documentState(), stateOf(copy));
    EXPECT_EQ(editor->recent().paths(), (QStringList{copy, original}));
    EXPECT_EQ(std::pair(busy, idle), std::pair(1, 1));

    edit(4, 4, rgb(4, 5, 6));
    EXPECT_TRUE(editor->files().save());
    EXPECT_FALSE(editor->doc().modified);
    EXPECT_EQ(readFile(original), icon.file());
    EXPECT_EQ(readFile(copy),
              IcoFile::iconBytes(editor->doc().PicMask, editor->doc().PicImage, 256))
        << "forty colours are written at 8 bits";
}

TEST_F(FileCommandsSaveTest, BitmapAndCursorCopiesAskTheHotSpotFirstAndLeaveTheDocument) {
    const QString original = writeFile("many.ico", TestIcon(32, 4).file());
    openThroughDialog(original);
    edit(2, 2, rgb(7, 7, 7));
    clipboard.picture = Plane(4, 4, rgb(0, 0, 255)); // floats over the top left corner
    editor->selection().Paste(false);
    const std::string state = documentState();
    editor->files().saveAsCursor(); // the hot spot is cancelled: no file dialog
    dialogs.hotSpots = {HotSpot{0, 0}, HotSpot{5, 7}};
    editor->files().saveAsCursor(); // the file dialog is cancelled
    chooseNext(path("many.bmp"));
    editor->files().saveAsBitmap();
    chooseNext(path("many.cur"));
    editor->files().saveAsCursor();
    using enum FileDialogMode;
    EXPECT_EQ(dialogs.fileModes, (std::vector{Open, SaveAsCursor, SaveAsBitmap, SaveAsCursor}));
    EXPECT_EQ(documentState(), state);
    EXPECT_EQ(editor->recent().paths(), QStringList{original});
    EXPECT_EQ(shown(), "");
    // The bitmap is the icon over white: transparent pixels white, inverting
    // ones white XOR their colour. Both need more than 16 colours: 8 bits.
    Plane overWhite = editor->doc().PicImage;
    overWhite.setPixel(31, 0, kWhite);
    overWhite.setPixel(5, 0, kWhite ^ rgb(8, 247, 56));
    overWhite.setPixel(6, 0, kBlack);
    EXPECT_EQ(hex(overWhite.pixel(0, 0)), hex(rgb(0, 0, 255))) << "the paste is put down first";
    EXPECT_EQ(readFile(path("many.bmp")), BmpFile::bytes(overWhite, 256));
    EXPECT_EQ(readFile(path("many.cur")),
              IcoFile::cursorBytes(editor->doc().PicMask, editor->doc().PicImage, 256, 5, 7));
}

TEST_F(FileCommandsSaveTest, AnImageOfAMultiImageFileSavesOnlyToAnotherFile) {
    const QByteArray bytes = icoFile({TestIcon(16, 4).stored, TestIcon(16, 8).stored});
    const QString source = writeFile("pair.ico", bytes);
    dialogs.iconLines.push_back(1);
    openThroughDialog(source);
    edit(6, 6, rgb(60, 70, 80));
    // On purpose: the in-place rewrite is refused and the file stays.
    EXPECT_FALSE(editor->files().save());
    EXPECT_EQ(shown(), brevikError("Unable to save the file pair.ico"));
    EXPECT_EQ(readFile(source), bytes);

    const QString copy = path("pair-copy.ico");
    chooseNext(copy);
    editor->files().saveAs();
    EXPECT_EQ(documentState(), stateOf(copy));
    EXPECT_EQ(readFile(copy),
              IcoFile(bytes).withImageReplaced(editor->doc().PicMask, editor->doc().PicImage, 256,
                                               {1, 8, 16, 16}));
}

TEST_F(FileCommandsSaveTest, AWriteThatFailsLeavesTheOldFileAndTheDocument) {
    const QByteArray old = TestIcon(48, 24).file();
    writeFile("pair.ico", icoFile({TestIcon(16, 4).stored, TestIcon(16, 8).stored}));
    QDir(files.path()).mkdir("locked");
    const QString full = writeFile("kept", old), locked = writeFile("locked/kept", old);
    // Anyone may pass through the folders and write "locked/kept", but no one
    // may add a file to "locked".
    ::chmod(QFile::encodeName(files.path()).constData(), 0755);
    ::chmod(QFile::encodeName(path("locked")).constData(), 0555);
    ::chmod(QFile::encodeName(locked).constData(), 0777);
    const QString unable = "Unable to save the file kept";
    using Save = std::function<void(FileCommands&)>;
    // The command, the file opened before the edit ("" for none, "kept" for
    // the one saved over), and the message; every command saves over "kept".
    const std::tuple<const char*, QString, Save, QString> cases[] = {
        {"Save", "kept", [](FileCommands& f) { f.save(); }, unable},
        {"Save As", "", [](FileCommands& f) { f.saveAs(); }, unable},
        {"Save As of one of a pair", "pair.ico", [](FileCommands& f) { f.saveAs(); }, unable},
        {"Save As Bitmap", "", [](FileCommands& f) { f.saveAsBitmap(); },
         "Failed to Save Icon As Bitmap."},
        {"Save As Cursor", "", [](FileCommands& f) { f.saveAsCursor(); },
         "Failed to Save Icon As Cursor."},
    };
    for (const QString& kept : {full, locked})
        for (const auto& [command, opened, save, message] : cases) {
            SCOPED_TRACE(command + (" over " + kept).toStdString());
            startWithSize(1);
            dialogs = ScriptedDialogs();
            dialogs.iconLines = {0};
            dialogs.hotSpots = {HotSpot{2, 3}};
            if (!opened.isEmpty())
                openThroughDialog(opened == "kept" ? kept : path(opened));
            edit(1, 1, rgb(9, 8, 7));
            chooseNext(kept);
            ASSERT_TRUE(editor->doc().modified);
            const std::string state = documentState();
            const QString folder = QFileInfo(kept).path();
            const QStringList entries = entriesOf(folder), recent = editor->recent().paths();
            editor->files().saveSucceeded = true; // a failed save of the document lowers it
            {
                const SaveFault fault(kept == full);
                ASSERT_TRUE(QFile(kept).open(QIODevice::ReadWrite))
                    << "the file itself is writable";
                save(editor->files());
            }
            EXPECT_EQ(shown(), brevikError(message));
            EXPECT_EQ(readFile(kept), old);
            EXPECT_EQ(entriesOf(folder), entries) << "no temporary file is left behind";
            EXPECT_EQ(documentState(), state);
            EXPECT_EQ(editor->recent().paths(), recent);
            EXPECT_EQ(editor->files().saveSucceeded, message != unable);
        }
    ::chmod(QFile::encodeName(path("locked")).constData(), 0755);
}

} // namespace
