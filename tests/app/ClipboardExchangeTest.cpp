#include "MainWindowFixture.h"

#include "widgets/PlaneImage.h"

#include <QClipboard>
#include <QImage>

namespace {

// The main window on the system clipboard of the offscreen platform, as
// another program would see it: pictures go in and come out as QImages. What
// happens to each kind of pixel on the way is the core's ClipboardTest; here
// that pictures cross whole, their colours in order, and that text is none.
TEST(ClipboardExchangeTest, PicturesCrossWholeBothWaysAndTextGreysPaste) {
    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    frmMain window{&dialogs};
    startActive(window, folder, "store.ini");
    const auto keys = [&window](Qt::Key key) {
        QTest::keyClick(&window, key, Qt::ControlModifier);
    };
    IconDocument& doc = window.editor().doc();
    doc.PicImage.setPixel(3, 2, rgb(200, 10, 20));
    doc.PicMask.setPixel(3, 2, kBlack);
    keys(Qt::Key_T);
    keys(Qt::Key_C);
    Plane expected(32, 32, kWhite);
    expected.setPixel(3, 2, rgb(200, 10, 20));
    EXPECT_EQ(PlaneImage::toPlane(QApplication::clipboard()->image()), expected);

    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 255));
    picture.setPixel(19, 9, qRgb(200, 10, 20));
    QApplication::clipboard()->setImage(picture);
    EXPECT_TRUE(window.editor().editActionEnabled(EditAction::Paste));
    keys(Qt::Key_V);
    expected = Plane(20, 10, rgb(0, 0, 255));
    expected.setPixel(19, 9, rgb(200, 10, 20));
    EXPECT_EQ(std::pair(doc.PicSelImage, window.editor().selection().SelFloating),
              std::pair(expected, true));

    QApplication::clipboard()->setText("not a picture");
    EXPECT_FALSE(window.editor().editActionEnabled(EditAction::Paste));
}

} // namespace
