#include "dialogs/FrmTxt.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// "Text" on a 16 x 16 icon: text typed in red is cut to the icon's width
// with its grey edges kept; Ok takes it with those edges opaque, Cancel
// takes nothing.
TEST(TextDialog, RendersWhatIsTypedCutToTheIconAndOkTakesItWhileCancelTakesNothing) {
    for (const bool ok : {true, false}) {
        QColorDialog::setCustomColor(3, Qt::blue);
        FrmTxt dialog(16, nullptr);
        dialog.show();
        EXPECT_EQ(dialog.CboFonts->count(), QFontDatabase::families().size());
        EXPECT_EQ(dialog.CboStyle->itemText(3) + dialog.CboSize->itemText(4), "Bold Italic16");
        EXPECT_EQ(QColorDialog::customColor(3), QColor(Qt::white));
        dialog.chooseColour = [](const QColor&) { return QColor(Qt::red); };
        QTest::mouseClick(dialog.CmdColor, Qt::LeftButton);
        dialog.CboSize->setCurrentIndex(1);
        QTest::keyClicks(dialog.Txt, "Tttttt");
        QApplication::processEvents();
        // Cut to the longest start that fits in 16 pixels.
        const QString kept = dialog.Txt->text();
        const QImage device(16, 16, QImage::Format_RGB32);
        const QFontMetrics metrics(dialog.textFont(), &device);
        EXPECT_TRUE(!kept.isEmpty() && QString("Ttttt").startsWith(kept)) << kept.toStdString();
        EXPECT_LE(metrics.horizontalAdvance(kept), 16);
        EXPECT_GT(metrics.horizontalAdvance(kept + "t"), 16);

        TextPlanes rendered{dialog.PicTextImage, dialog.PicTextMask};
        const std::vector<Colour>& mask = rendered.mask.pixels();
        const std::vector<Colour>& image = rendered.image.pixels();
        const auto grey = [](Colour m) { return m != kBlack && m != kWhite; };
        EXPECT_TRUE(std::any_of(mask.begin(), mask.end(), grey));
        const auto redOnBlack = [](Colour c) { return (c & 0xFFFF00) == 0; };
        EXPECT_TRUE(std::all_of(image.begin(), image.end(), redOnBlack));
        QTest::mouseClick(ok ? dialog.CmdOk : dialog.CmdCancel, Qt::LeftButton);
        EXPECT_EQ(dialog.acceptedText().has_value(), ok);
        if (ok) {
            TextPlanes::hardenMask(rendered.mask);
            EXPECT_EQ(std::pair(dialog.acceptedText()->image, dialog.acceptedText()->mask),
                      std::pair(rendered.image, rendered.mask));
        }
    }
}

} // namespace
