#include "app/frmMain.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The main window on the system clipboard of the offscreen platform, as
// another program would see it: pictures go in and come out as QImages.
class ClipboardExchangeTest : public ::testing::Test {
  protected:
    ClipboardExchangeTest() {
        window.editor().registry() = ModRegistry(folder.filePath("store.ini"));
        window.startUp({});
        window.activateWindow();
        QApplication::processEvents();
        QApplication::clipboard()->clear();
    }

    void keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&window, key, modifiers);
    }
    Editor& editor() { return window.editor(); }

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    frmMain window{&dialogs};
};

TEST_F(ClipboardExchangeTest, CopiedIconReachesOtherProgramsWithItsColoursInOrder) {
    editor().doc().PicImage.setPixel(3, 2, rgb(200, 10, 20));
    editor().doc().PicMask.setPixel(3, 2, kBlack);
    keys(Qt::Key_T);
    keys(Qt::Key_C);

    const QImage copied = QApplication::clipboard()->image();
    ASSERT_EQ(copied.size(), QSize(32, 32));
    // How each kind of pixel is copied is the core's (EditMenuTest); here
    // that the picture reaches the system clipboard with its colours in order.
    EXPECT_EQ(copied.pixel(3, 2), qRgb(200, 10, 20));
    EXPECT_EQ(copied.pixel(0, 0), qRgb(255, 255, 255));
}

TEST_F(ClipboardExchangeTest, PictureFromAnotherProgramPastesFloatingWithWhiteTransparent) {
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 2; y < 8; ++y)
        for (int x = 2; x < 18; ++x)
            picture.setPixel(x, y, qRgb(0, 0, 255));
    QApplication::clipboard()->setImage(picture);
    ASSERT_TRUE(editor().editActionEnabled(EditAction::Paste));

    // What happens to a pasted picture is the core's; here only that the
    // picture arrives whole, white as transparent.
    keys(Qt::Key_V);
    ASSERT_TRUE(editor().selection().SelFloating);
    const IconDocument& doc = editor().doc();
    EXPECT_EQ(std::pair(doc.PicSelImage.width(), doc.PicSelImage.height()), std::pair(20, 10));
    EXPECT_EQ(std::pair(doc.PicSelImage.pixel(2, 2), doc.PicSelMask.pixel(2, 2)),
              std::pair(rgb(0, 0, 255), kBlack));
    EXPECT_EQ(std::pair(doc.PicSelMask.pixel(0, 0), doc.PicSelMask.pixel(19, 9)),
              std::pair(kWhite, kWhite));
    EXPECT_EQ(dialogs.pasteDialogs, 0);
}

TEST_F(ClipboardExchangeTest, TextOnlyClipboardGreysPasteAndTheShortcutFloatsNothing) {
    QApplication::clipboard()->setText("not a picture");
    EXPECT_FALSE(editor().editActionEnabled(EditAction::Paste));
    EXPECT_FALSE(editor().editActionEnabled(EditAction::PasteOpaque));
    keys(Qt::Key_V);
    EXPECT_TRUE(editor().selection().SelFloating);
    EXPECT_EQ(editor().selection().SelRect.Right, 0) << "the empty picture floats";
}

} // namespace
