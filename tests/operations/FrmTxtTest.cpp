#include "dialogs/FrmTxt.h"
#include "app/MainWindowFixture.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

// The real "Text" dialog, opened by F2 on a 16 x 16 icon of a window that asks
// with Qt dialogs: text typed in red, cut to the icon's width, and on Ok
// floating at the top-left corner with its grey edges opaque.
TEST(TextDialog, RendersWhatIsTypedCutToTheIconAndOkFloatsItWhileCancelAddsNothing) {
    for (const bool ok : {true, false}) {
        QTemporaryDir folder;
        MemoryClipboard clipboard;
        frmMain window(nullptr, &clipboard);
        window.editor().registry() = ModRegistry(folder.filePath("store.ini"));
        window.startUp({});
        Editor& editor = window.editor();
        editor.newIcon(0);
        window.activateWindow();
        QApplication::processEvents();
        const Plane image = editor.doc().PicImage, mask = editor.doc().PicMask;
        QColorDialog::setCustomColor(3, Qt::blue);

        TextPlanes rendered;
        QTimer::singleShot(0, &window, [&] {
            auto* dialog = qobject_cast<FrmTxt*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->windowTitle(), "Text");
            EXPECT_EQ(dialog->CboFonts->count(), QFontDatabase::families().size());
            QStringList lists;
            for (QComboBox* list : {dialog->CboStyle, dialog->CboSize})
                for (int i = 0; i < list->count(); ++i)
                    lists << list->itemText(i);
            EXPECT_EQ(lists.join(','), "Regular,Bold,Italic,Bold Italic,8,10,12,14,16");
            EXPECT_EQ(dialog->CboSize->currentText(), "8");
            EXPECT_EQ(QColorDialog::customColor(3), QColor(Qt::white));

            dialog->chooseColour = [](const QColor&) { return QColor(Qt::red); };
            QTest::mouseClick(dialog->CmdColor, Qt::LeftButton);
            dialog->CboSize->setCurrentIndex(1);
            QTest::keyClicks(dialog->Txt, "Tttttt");
            QApplication::processEvents();
            // Cut to the widest start that fits in 16 pixels.
            const QString kept = dialog->Txt->text();
            EXPECT_TRUE(!kept.isEmpty() && QString("Ttttt").startsWith(kept)) << kept.toStdString();
            QImage device(16, 16, QImage::Format_RGB32);
            device.setDotsPerMeterX(3780);
            device.setDotsPerMeterY(3780);
            const QFontMetrics metrics(dialog->textFont(), &device);
            EXPECT_LE(metrics.horizontalAdvance(kept), 16);
            EXPECT_GT(metrics.horizontalAdvance(kept + "t"), 16);

            rendered = {dialog->PicTextImage, dialog->PicTextMask};
            QTest::mouseClick(ok ? dialog->CmdOk : dialog->CmdCancel, Qt::LeftButton);
        });
        QTest::keyClick(&window, Qt::Key_F2);
        ASSERT_EQ(rendered.mask.width(), 16);
        // Anti-aliased edges: some grey in the mask, and a glyph pixel's colour
        // is red blended with black.
        int grey = 0, glyph = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const Colour m = rendered.mask.pixel(x, y), c = rendered.image.pixel(x, y);
                grey += m != kBlack && m != kWhite;
                glyph += m != kWhite;
                EXPECT_EQ(c & 0xFFFF00, 0u) << x << ", " << y;
            }
        EXPECT_GT(grey, 0);
        EXPECT_GT(glyph, 8);

        const IconDocument& doc = editor.doc();
        EXPECT_EQ(std::pair(doc.PicImage, doc.PicMask), std::pair(image, mask));
        EXPECT_EQ(editor.selection().SelFloating, ok);
        if (ok) {
            TextPlanes::hardenMask(rendered.mask);
            EXPECT_EQ(std::pair(doc.PicSelImage, doc.PicSelMask),
                      std::pair(rendered.image, rendered.mask));
            editor.commitSelection();
            EXPECT_EQ(editor.undoRedo().UndoStack.size(), 2u);
        }
    }
}

} // namespace
