#include "MainWindowFixture.h"

#include <QClipboard>
#include <QImage>

namespace {

// The main window on the system clipboard of the offscreen platform, as
// another program would see it: pictures go in and come out as QImages. What
// happens to each kind of pixel on the way is the core's ClipboardTest; here
// that pictures cross whole, their colours in order.
class ClipboardExchangeTest : public ::testing::Test {
  protected:
    void SetUp() override {
        startActive(window, folder, "store.ini");
        QApplication::clipboard()->clear();
    }
    void keys(Qt::Key key) { QTest::keyClick(&window, key, Qt::ControlModifier); }
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
    EXPECT_EQ(copied.pixel(3, 2), qRgb(200, 10, 20));
    EXPECT_EQ(copied.pixel(0, 0), qRgb(255, 255, 255));
}

TEST_F(ClipboardExchangeTest, PictureFromAnotherProgramPastesFloatingWithWhiteTransparent) {
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 255));
    picture.setPixel(19, 9, qRgb(255, 255, 255));
    QApplication::clipboard()->setImage(picture);
    ASSERT_TRUE(editor().editActionEnabled(EditAction::Paste));
    keys(Qt::Key_V);
    ASSERT_TRUE(editor().selection().SelFloating);
    const IconDocument& doc = editor().doc();
    EXPECT_EQ(std::pair(doc.PicSelImage.width(), doc.PicSelImage.height()), std::pair(20, 10));
    EXPECT_EQ(std::pair(doc.PicSelImage.pixel(2, 2), doc.PicSelMask.pixel(2, 2)),
              std::pair(rgb(0, 0, 255), kBlack));
    EXPECT_EQ(doc.PicSelMask.pixel(19, 9), kWhite);
}

TEST_F(ClipboardExchangeTest, TextOnlyClipboardGreysPaste) {
    QApplication::clipboard()->setText("not a picture");
    EXPECT_FALSE(editor().editActionEnabled(EditAction::Paste));
}

} // namespace
