#include "widgets/PreviewDialog.h"
#include "widgets/PictureBox.h"
#include "widgets/PlaneImage.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr Colour kOpaque = 0x785028;    // rgb(40, 80, 120)
constexpr Colour kInverting = 0x55F00F; // stored under a white mask
const QColor kFace(200, 100, 50);
const QColor kShadow(1, 2, 3);
const QColor kMidlight(250, 240, 230);

// A dialog as thin as the real ones should be: one spinner sets the red of
// every opaque pixel, Reset puts it back to 40, Ok keeps what was shown.
class SetRedDialog : public PreviewDialog {
  public:
    explicit SetRedDialog(int size)
        : PreviewDialog("FrmSetRed", "Set Red", QSize(300, 120), nullptr), colour_(size, size),
          mask_(size, size, kBlack) {
        colour_.fill(kOpaque);
        colour_.setPixel(0, 0, kBlack); // transparent
        mask_.setPixel(0, 0, kWhite);
        colour_.setPixel(1, 0, kInverting);
        mask_.setPixel(1, 0, kWhite);
        SpnRed = new QSpinBox(this);
        SpnRed->setRange(0, 255);
        SpnRed->setValue(40);
        PicShade = addPreview("PicShade", QRect(123, 8, 54, 54));
        addOkCancel(QRect(200, 8, 88, 28), QRect(200, 44, 88, 28));
        addReset(QRect(200, 80, 88, 28));
        connect(SpnRed, &QSpinBox::valueChanged, this, &SetRedDialog::schedulePreview);
    }

    QSpinBox* SpnRed;
    PictureBox* PicShade;
    int renders = 0;
    bool takes = true;
    Plane kept;

  protected:
    Planes renderPreview(int) override {
        ++renders;
        shown_ = colour_;
        for (int y = 0; y < shown_.height(); ++y)
            for (int x = 0; x < shown_.width(); ++x)
                if (mask_.pixel(x, y) == kBlack)
                    shown_.setPixel(x, y, (shown_.pixel(x, y) & 0xFFFF00) | SpnRed->value());
        return {shown_, mask_};
    }
    bool acceptResult() override {
        if (takes)
            kept = shown_;
        return takes;
    }
    void reset() override { SpnRed->setValue(40); }

  private:
    Plane colour_;
    Plane mask_;
    Plane shown_;
};

class PreviewDialogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        QPalette palette = saved_;
        palette.setColor(QPalette::Button, kFace);
        palette.setColor(QPalette::Shadow, kShadow);
        palette.setColor(QPalette::Midlight, kMidlight);
        QApplication::setPalette(palette);
    }
    void TearDown() override { QApplication::setPalette(saved_); }

    // Transparent (0, 0), inverting (1, 0) and opaque (last) pixels as shown.
    static std::vector<QRgb> shown(SetRedDialog& dialog) {
        const QImage image = dialog.PicShade->grab().toImage();
        const int last = image.width() - 1;
        return {image.pixel(0, 0), image.pixel(1, 0), image.pixel(last, last)};
    }

    QPalette saved_ = QApplication::palette();
};

TEST_F(PreviewDialogTest, ShowsTheIconAtActualSizeOverTheButtonFaceCentredInASunkenFrame) {
    const Colour face = rgb(kFace.red(), kFace.green(), kFace.blue());
    // Icon size, and where its preview lands in the frame (123, 8)-(177, 62).
    const std::pair<int, QPoint> cases[] = {{16, {142, 27}}, {32, {134, 19}}, {48, {126, 11}}};
    for (const auto& [size, at] : cases) {
        SCOPED_TRACE(size);
        SetRedDialog dialog(size);
        dialog.show();
        EXPECT_EQ(dialog.renders, 1);
        EXPECT_EQ(dialog.PicShade->geometry(), QRect(at, QSize(size, size)));
        EXPECT_EQ(shown(dialog),
                  std::vector<QRgb>({PlaneImage::toRgb(face), PlaneImage::toRgb(face ^ kInverting),
                                     PlaneImage::toRgb(kOpaque)}));
        const QImage window = dialog.grab().toImage();
        EXPECT_EQ(window.pixel(123, 8), kShadow.rgb());
        EXPECT_EQ(window.pixel(176, 61), kMidlight.rgb());
    }
}

TEST_F(PreviewDialogTest, RedrawsOnceForChangesMadeTogetherAndResetRedrawsAtOnce) {
    SetRedDialog dialog(16);
    dialog.show();
    const std::vector<QRgb> before = shown(dialog);
    dialog.SpnRed->setValue(7);
    dialog.SpnRed->setValue(255);
    EXPECT_EQ(shown(dialog), before);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.renders, 2);
    EXPECT_EQ(shown(dialog), std::vector<QRgb>({before[0], before[1], qRgb(255, 80, 120)}));

    auto* reset = dialog.findChild<QPushButton*>("CmdReset");
    EXPECT_EQ(reset->text(), "&Reset");
    QTest::mouseClick(reset, Qt::LeftButton);
    EXPECT_EQ(shown(dialog), before);
    QCoreApplication::processEvents(); // the reset spinner's own change draws nothing more
    EXPECT_EQ(dialog.renders, 3);
}

TEST_F(PreviewDialogTest, OkTakesTheResultAndLowersTheFlagOnlyWhenTheDialogAgrees) {
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
        EXPECT_TRUE(dialog.cancelled());
        QTimer::singleShot(0, &dialog, [&dialog, name = button] {
            QTest::mouseClick(dialog.findChild<QPushButton*>(name), Qt::LeftButton);
        });
        EXPECT_EQ(dialog.exec(), result);
        EXPECT_EQ(dialog.cancelled(), !kept);
        EXPECT_EQ(dialog.kept.pixel(15, 15), kept ? rgb(9, 80, 120) : kInvalidColour);
    }
}

} // namespace
