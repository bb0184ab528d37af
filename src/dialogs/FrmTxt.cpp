#include "dialogs/FrmTxt.h"

#include "widgets/PictureBox.h"
#include "widgets/PlaneImage.h"

#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

const char* const kStyles[] = {"Regular", "Bold", "Italic", "Bold Italic"};
const char* const kSizes[] = {"8", "10", "12", "14", "16"};
// Points count as on a 96 dpi screen, so a size gives the same pixels on
// every machine, whatever the screens it has.
constexpr int kDotsPerMeter = 3780;

QComboBox* addList(QWidget* parent, const char* name, const QRect& at, const QStringList& items) {
    auto* list = new QComboBox(parent);
    list->setObjectName(QString::fromLatin1(name));
    list->addItems(items);
    list->setCurrentIndex(0);
    list->setGeometry(at);
    return list;
}

QImage blankPicture(int size, const QColor& background) {
    QImage picture(size, size, QImage::Format_RGB32);
    picture.setDotsPerMeterX(kDotsPerMeter);
    picture.setDotsPerMeterY(kDotsPerMeter);
    picture.fill(background);
    return picture;
}

void drawText(QImage& picture, const QFont& font, const QColor& colour, const QString& text) {
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(colour);
    // An ampersand marks the next character, as in a caption ("&&" draws
    // one): intended, the text is drawn as a label's would be, while its
    // width is measured as typed.
    painter.drawText(picture.rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, text);
}

std::optional<QColor> systemChooser(QWidget* parent, const QColor& current) {
    const QColor chosen = QColorDialog::getColor(current, parent);
    if (!chosen.isValid())
        return std::nullopt;
    return chosen;
}

} // namespace

FrmTxt::FrmTxt(int size, QWidget* parent)
    : PreviewDialog(QStringLiteral("FrmTxt"), QStringLiteral("Text"), QSize(376, 126), parent),
      size_(size) {
    // The chooser's custom colours start white each time the dialog opens.
    for (int i = 0; i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, Qt::white);
    chooseColour = [this](const QColor& current) { return systemChooser(this, current); };

    Txt = new QLineEdit(this);
    Txt->setObjectName("Txt");
    Txt->setGeometry(8, 8, 200, 28);
    QStringList styles, sizes;
    for (const char* style : kStyles)
        styles << QString::fromLatin1(style);
    for (const char* points : kSizes)
        sizes << QString::fromLatin1(points);
    CboFonts = addList(this, "CboFonts", QRect(8, 42, 200, 22), QFontDatabase::families());
    CboStyle = addList(this, "CboStyle", QRect(8, 68, 110, 22), styles);
    CboSize = addList(this, "CboSize", QRect(124, 68, 84, 22), sizes);
    CmdColor = new QPushButton(QStringLiteral("&Text Color"), this);
    CmdColor->setObjectName("CmdColor");
    CmdColor->setGeometry(8, 94, 110, 24);
    // The frame holds a 48-pixel icon with a pixel to spare all round.
    PicText = addPreview(QStringLiteral("PicText"), QRect(216, 8, 54, 54));
    const OkCancelButtons buttons = addOkCancel(QRect(280, 8, 88, 24), QRect(280, 36, 88, 24));
    CmdOk = buttons.ok;
    CmdCancel = buttons.cancel;

    for (QComboBox* list : {CboFonts, CboStyle, CboSize})
        connect(list, &QComboBox::currentIndexChanged, this, [this] {
            styleTextBox();
            schedulePreview();
        });
    connect(Txt, &QLineEdit::textChanged, this, [this] { schedulePreview(); });
    connect(CmdColor, &QPushButton::clicked, this, [this] {
        if (const std::optional<QColor> chosen = chooseColour(colour_)) {
            colour_ = *chosen;
            styleTextBox();
            schedulePreview();
        }
    });
    styleTextBox();
}

QFont FrmTxt::textFont() const {
    QFont font(CboFonts->currentText());
    font.setPointSize(CboSize->currentText().toInt());
    const int style = CboStyle->currentIndex();
    font.setBold(style == 1 || style == 3);
    font.setItalic(style == 2 || style == 3);
    return font;
}

void FrmTxt::styleTextBox() {
    Txt->setFont(textFont());
    QPalette palette = Txt->palette();
    palette.setColor(QPalette::Text, colour_);
    Txt->setPalette(palette);
}

void FrmTxt::render() {
    // Events run while the text is cut, so a change can ask for a rendering
    // in the middle of one; it is done once this one has finished.
    if (rendering_) {
        renderAgain_ = true;
        return;
    }
    rendering_ = true;
    do {
        renderAgain_ = false;
        const QFont font = textFont();
        QImage mask = blankPicture(size_, Qt::white);
        QImage image = blankPicture(size_, Qt::black);
        const QFontMetrics metrics(font, &mask);
        QString text = Txt->text();
        bool cut = false;
        while (metrics.horizontalAdvance(text) > size_) {
            text.chop(1);
            cut = true;
            // Repaints run between characters; a click on Ok waits until the
            // text is cut, so it takes the rendering of the text it shows.
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
        if (cut) {
            // The text is rendered below; the change needs no second rendering.
            const QSignalBlocker quiet(Txt);
            Txt->setText(text);
        }
        drawText(mask, font, Qt::black, text);
        drawText(image, font, colour_, text);
        PicTextMask = PlaneImage::toPlane(mask);
        PicTextImage = PlaneImage::toPlane(image);
    } while (renderAgain_);
    rendering_ = false;
}

PreviewDialog::Planes FrmTxt::renderPreview(int) {
    render();
    // The preview shows the text as it will arrive, its edges opaque.
    Planes shown{PicTextImage, PicTextMask};
    TextPlanes::hardenMask(shown.mask);
    return shown;
}

bool FrmTxt::acceptResult() {
    // Ok may come before a scheduled rendering of the last change.
    updatePreview();
    accepted_ = TextPlanes::accepted(Txt->text(), {PicTextImage, PicTextMask});
    return accepted_.has_value();
}
