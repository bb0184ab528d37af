#include "widgets/PreviewDialog.h"
#include "widgets/PictureBox.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <vector>

namespace {

// A dialog as thin as the real ones should be: a transparent pixel and opaque
// ones, one spinner sets the red of the last pixel, Reset puts it
// back to 40, Ok keeps what was shown.
class SetRedDialog : public PreviewDialog {
  public:
    explicit SetRedDialog(int size)
        : PreviewDialog("FrmSetRed", "Set Red", QSize(300, 120), nullptr),
          shown_(size, size, rgb(40, 80, 120)), mask_(size, size, kBlack) {
        shown_.setPixel(0, 0, kBlack);
        mask_.setPixel(0, 0, kWhite);
        SpnRed->setRange(0, 255);
        SpnRed->setValue(40);
        PicShade = addPreview("PicShade", QRect(123, 8, 54, 54));
        addOkCancel(QRect(200, 8, 88, 28), QRect(200, 44, 88, 28));
        addReset(QRect(200, 80, 88, 28));
        connect(SpnRed, &QSpinBox::valueChanged, this, &SetRedDialog::schedulePreview);
    }

    QSpinBox* SpnRed = new QSpinBox(this);
    PictureBox* PicShade;
    int renders = 0;
    bool takes = true;
    Plane kept;

  protected:
    Planes renderPreview(int) override {
        ++renders;
        const int last = shown_.width() - 1;
        shown_.setPixel(last, last, rgb(SpnRed->value(), 80, 120));
        return {shown_, mask_};
    }
    bool acceptResult() override {
        if (takes)
            kept = shown_;
        return takes;
    }
    void reset() override { SpnRed->setValue(40); }

  private:
    Plane shown_;
    Plane mask_;
};

// The transparent (0, 0) and the opaque last pixel as shown.
std::vector<QRgb> shown(SetRedDialog& dialog) {
    const QImage image = dialog.PicShade->grab().toImage();
    const int last = image.width() - 1;
    return {image.pixel(0, 0), image.pixel(last, last)};
}

TEST(PreviewDialogTest, ShowsTheIconAtActualSizeOverTheButtonFaceCentredInASunkenFrame) {
    // Icon size, and where its preview lands in the frame (123, 8)-(177, 62).
    const std::pair<int, QPoint> cases[] = {{16, {142, 27}}, {32, {134, 19}}, {48, {126, 11}}};
    for (const auto& [size, at] : cases) {
        SCOPED_TRACE(size);
        SetRedDialog dialog(size);
        dialog.show();
        const QPalette& palette = dialog.palette();
        EXPECT_EQ(dialog.PicShade->geometry(), QRect(at, QSize(size, size)));
        EXPECT_EQ(shown(dialog),
                  std::vector<QRgb>({palette.button().color().rgb(), qRgb(40, 80, 120)}));
        const QImage window = dialog.grab().toImage();
        EXPECT_EQ(std::pair(window.pixel(123, 8), window.pixel(176, 61)),
                  std::pair(palette.shadow().color().rgb(), palette.midlight().color().rgb()));
    }
}

TEST(PreviewDialogTest, RedrawsOnceForChangesMadeTogetherAndResetRedrawsAtOnce) {
    SetRedDialog dialog(16);
    dialog.show();
    const std::vector<QRgb> before = shown(dialog);
    dialog.SpnRed->setValue(7);
    dialog.SpnRed->setValue(255);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.renders, 2);
    EXPECT_EQ(shown(dialog), std::vector<QRgb>({before[0], qRgb(255, 80, 120)}));

    auto* reset = dialog.findChild<QPushButton*>("CmdReset");
    EXPECT_EQ(reset->text(), "&Reset");
    QTest::mouseClick(reset, Qt::LeftButton);
    EXPECT_EQ(shown(dialog), before);
    QCoreApplication::processEvents(); // the reset spinner's own change draws nothing more
    EXPECT_EQ(dialog.renders, 3);
}

TEST(PreviewDialogTest, OkTakesTheResultAndLowersTheFlagOnlyWhenTheDialogAgrees) {
    // The button pressed, whether the dialog takes its result, the modal
    // result, and whether the result was kept.
    const std::tuple<const char*, bool, int, bool> cases[] = {
        {"CmdOk", true, QDialog::Accepted, true},
        {"CmdOk", false, QDialog::Rejected, false},
        {"CmdCancel", true, QDialog::Rejected, false},
    };
    for (const auto& [button, takes, result, kept] : cases) {
        SCOPED_TRACE(std::string(button) + (takes ? " taken" : " refused"));
        SetRedDialog dialog(16);
        dialog.takes = takes;
        dialog.SpnRed->setValue(9);
        QTimer::singleShot(0, &dialog, [&dialog, name = button] {
            QTest::mouseClick(dialog.findChild<QPushButton*>(name), Qt::LeftButton);
        });
        EXPECT_EQ(dialog.exec(), result);
        EXPECT_EQ(dialog.cancelled(), !kept);
        EXPECT_EQ(dialog.kept.pixel(15, 15), kept ? rgb(9, 80, 120) : kInvalidColour);
    }
}

} // namespace
