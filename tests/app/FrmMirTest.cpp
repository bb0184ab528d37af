#include "MainWindowFixture.h"

#include "dialogs/FrmMir.h"
#include "fileio/IcoBuilder.h"
#include "widgets/PictureBox.h"
#include "widgets/PlaneImage.h"

#include <QAction>
#include <QMenu>

namespace {

struct FrmMirTest : ::testing::Test {
    FrmMirTest() { form.show(); }

    // The file dialog answers with a file of these bytes (none when null),
    // then File > Open runs.
    void open(const QString& name, const QByteArray& bytes) {
        QFile file(dir.filePath(name));
        if (!bytes.isNull()) {
            EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
            file.close();
        }
        dialogs.files.push_back(FileChoice{file.fileName(), name});
        form.MnuOpen->trigger();
    }
    void openSlot(int slot) {
        open("slot.ico", TestIcon(16 * (slot % 3 + 1), std::array{1, 4, 8, 24}[slot / 3]).file());
    }
    QString lastMessage() const {
        return dialogs.messages.empty()
                   ? QString()
                   : dialogs.messages.back().title + "|" + dialogs.messages.back().text;
    }
    bool createEnabled() {
        emit form.MnuFile->aboutToShow();
        return form.MnuCreate->isEnabled();
    }
    // A right click on the slot, then Delete if the pop-up offers it.
    bool rightClickDelete(int slot) {
        QTest::mouseClick(form.PicIco[slot], Qt::RightButton);
        const bool offered = form.MnuDel->isVisible();
        if (offered)
            form.MnuDelete->trigger();
        form.MnuDel->hide();
        return offered;
    }

    QTemporaryDir dir;
    ScriptedDialogs dialogs;
    QString folder = QStringLiteral("/start");
    FrmMir form{dialogs, folder, nullptr};
};

TEST_F(FrmMirTest, OpenShowsTheIconInItsSlotOrTellsWhyNot) {
    const TestIcon icon(32, 24); // (0, 0) is transparent
    const QString error("Sollent - Error|");
    const std::tuple<QString, QByteArray, QString> cases[] = {
        {"two.ico", icoFile({StoredImage(16, 4), StoredImage(32, 8)}),
         error + "two.ico is a multi icon resource.\r\n\r\nOnly single icons can be loaded."},
        {"big.ico", TestIcon(24, 4).file(), error + "Unable to load icon."},
        {"text.ico", "not an icon", error + "text.ico is not a valid icon file."},
        {"missing.ico", QByteArray(), error + "missing.ico is not a valid icon file."},
        {"true.ico", icon.file(), ""},
    };
    for (const auto& [name, bytes, message] : cases) {
        dialogs.messages.clear();
        open(name, bytes);
        EXPECT_EQ(lastMessage(), message);
    }
    EXPECT_EQ(form.builder().resource().filledCount(), 1);
    EXPECT_EQ(dialogs.fileStartFolders.front(), "/start");
    EXPECT_EQ(folder, dir.path()); // the chosen file's folder is kept
    const QColor face = form.palette().color(QPalette::Button);
    const QImage shown = form.PicIco[10]->image();
    const int at = (shown.width() - 32) / 2;
    EXPECT_EQ(std::pair(shown.pixel(at, at), shown.pixel(at + 1, at)),
              std::pair(face.rgb(), PlaneImage::toRgb(icon.image.pixel(1, 0))));
}

TEST_F(FrmMirTest, TheEleventhOpenShowsTheLimitAndNoFileDialog) {
    EXPECT_EQ(QStringList({form.windowTitle(), form.MnuFile->title(), form.MnuOpen->text(),
                           form.MnuCreate->text(), form.MnuExit->text(), form.MnuDelete->text()}),
              QStringList(
                  {"Create Multi Icon Resource", "&File", "&Open", "&Create", "E&xit", "&Delete"}));
    for (int slot = 0; slot < 10; ++slot)
        openSlot(slot);
    openSlot(10);
    openSlot(0); // not even a replacement
    EXPECT_EQ(dialogs.fileModes, std::vector(10, FileDialogMode::Open));
    EXPECT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(lastMessage(), "Sollent|A maximum of ten icons has been reached.\r\n\r\n"
                             "If you wish to remove an icon, right click on it to delete.");
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Information);
    EXPECT_TRUE(rightClickDelete(3));
    openSlot(10);
    EXPECT_EQ(dialogs.fileModes.size(), 11u);
    EXPECT_TRUE(form.builder().resource().isFilled(10));
}

// Create writes over an existing, longer file; one it cannot open is named
// as the dialog gave it.
TEST_F(FrmMirTest, CreateIsEnabledOnlyWhileASlotIsFilledAndWritesThem) {
    EXPECT_FALSE(createEnabled());
    EXPECT_FALSE(rightClickDelete(9)); // an empty slot has no pop-up
    openSlot(9);
    openSlot(1);
    EXPECT_TRUE(createEnabled());
    QFile file(dir.filePath("multi.ico"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(5000, 'x')));
    file.close();
    const QString unwritable = dir.filePath("none/multi.ico");
    dialogs.files = {FileChoice{file.fileName(), "multi.ico"}, FileChoice{unwritable, "multi.ico"}};
    form.MnuCreate->trigger();
    form.MnuCreate->trigger();
    EXPECT_EQ(dialogs.fileModes.back(), FileDialogMode::SaveAs);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), form.builder().resource().toBytes());
    EXPECT_EQ(lastMessage(), "Sollent - Error|Unable to create the file " + unwritable);
    EXPECT_TRUE(rightClickDelete(9) && rightClickDelete(1));
    EXPECT_FALSE(createEnabled());
}

using MainWindowMirTest = MainWindowFixture;

TEST_F(MainWindowMirTest, CtrlMOpensTheBuilderAndLeavesTheDocument) {
    const Plane before = editor().doc().PicImage;
    EXPECT_TRUE(driveDialog<FrmMir>(*window, Qt::ControlModifier | Qt::Key_M,
                                    [](FrmMir& form) { form.MnuExit->trigger(); }));
    EXPECT_EQ(editor().doc().PicImage, before);
    EXPECT_FALSE(editor().doc().modified);
}

} // namespace
