// Saves that fail half way, as on a full disk, and saves into a folder that
// takes no new file. Either way the file on disk must stay exactly as it was.
#include "FileCommandsFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

namespace {

// While alive, no file of this process may grow past the given size: a write
// beyond it fails with EFBIG, as one fails on a full disk, without needing a
// small file system or root.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit lowered = saved_;
        lowered.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &lowered);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit saved_{};
    void (*previousHandler_)(int) = nullptr;
};

// Folder permissions bind root only after it gives up its effective user id,
// which it can take back afterwards.
class WithoutRoot {
  public:
    WithoutRoot() : wasRoot_(geteuid() == 0) {
        if (wasRoot_) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~WithoutRoot() {
        if (wasRoot_) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    WithoutRoot(const WithoutRoot&) = delete;
    WithoutRoot& operator=(const WithoutRoot&) = delete;

  private:
    bool wasRoot_;
};

class FileCommandsFaultTest : public FileCommandsFixture {
  protected:
    QStringList folderEntries(const QString& folder) const {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

struct FailedSave {
    const char* command;
    // Brings the document to where the command saves it over "kept".
    std::function<void(const QString& kept)> prepare;
    std::function<void(FileCommands&)> save;
    const char* message;
};

TEST_F(FileCommandsFaultTest, AWriteThatFailsHalfWayLeavesTheOldFileAndTheDocument) {
    const QByteArray old = TestIcon(48, 24).file();
    const QByteArray pair = icoFile({TestIcon(16, 4).stored, TestIcon(16, 8).stored});
    const auto editThenChoose = [this](const QString& kept) {
        edit(1, 1, rgb(9, 8, 7));
        chooseNext(kept);
    };
    const std::vector<FailedSave> cases = {
        {"Save",
         [this](const QString& kept) {
             openThroughDialog(kept);
             edit(1, 1, rgb(9, 8, 7));
         },
         [](FileCommands& f) { f.save(); }, "Unable to save the file kept"},
        {"Save As over another file", editThenChoose, [](FileCommands& f) { f.saveAs(); },
         "Unable to save the file kept"},
        {"Save As of an image of a multi-image file",
         [&](const QString& kept) {
             dialogs.iconLines.push_back(0);
             openThroughDialog(writeFile("pair.ico", pair));
             editThenChoose(kept);
         },
         [](FileCommands& f) { f.saveAs(); }, "Unable to save the file kept"},
        {"Save As Bitmap", editThenChoose, [](FileCommands& f) { f.saveAsBitmap(); },
         "Failed to Save Icon As Bitmap."},
        {"Save As Cursor",
         [&](const QString& kept) {
             dialogs.hotSpots.push_back(HotSpot{2, 3});
             editThenChoose(kept);
         },
         [](FileCommands& f) { f.saveAsCursor(); }, "Failed to Save Icon As Cursor."},
    };
    for (const FailedSave& c : cases) {
        SCOPED_TRACE(c.command);
        startWithSize(1);
        const QString kept = writeFile("kept", old);
        c.prepare(kept);
        ASSERT_TRUE(editor->doc().modified);
        const std::string state = documentState();
        const QStringList entries = folderEntries(files.path()), recent = editor->recent().paths();
        dialogs.messages.clear();
        editor->files().saveSucceeded = true; // a failure must lower it again
        {
            const FileSizeLimit smallerThanAnyIcon(64);
            c.save(editor->files());
        }
        EXPECT_EQ(shown(), brevikError(c.message));
        EXPECT_EQ(readFile(kept), old);
        EXPECT_EQ(folderEntries(files.path()), entries) << "no temporary file is left behind";
        EXPECT_EQ(documentState(), state);
        EXPECT_EQ(editor->recent().paths(), recent);
        if (std::string(c.message).starts_with("Unable")) // a save of the document itself
            EXPECT_FALSE(editor->files().saveSucceeded);
    }
}

TEST_F(FileCommandsFaultTest, AFolderThatTakesNoNewFileRefusesTheSaveOfAWritableFile) {
    const QByteArray old = TestIcon(16, 8).file();
    QDir(files.path()).mkdir("locked");
    const QString kept = writeFile("locked/kept.ico", old);
    openThroughDialog(kept);
    edit(2, 2, rgb(1, 2, 3));
    const std::string state = documentState();
    QFile::setPermissions(files.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                            QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(path("locked"),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(kept, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther |
                                    QFile::WriteOther);
    {
        const WithoutRoot asAUser;
        ASSERT_TRUE(QFileInfo(kept).isWritable());
        EXPECT_FALSE(editor->files().save());
    }
    QFile::setPermissions(path("locked"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(shown(), brevikError("Unable to save the file kept.ico"));
    EXPECT_EQ(readFile(kept), old);
    EXPECT_EQ(folderEntries(path("locked")), QStringList{"kept.ico"});
    EXPECT_EQ(documentState(), state);
}

} // namespace
