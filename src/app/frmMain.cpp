#include "app/frmMain.h"

#include "app/AboutBox.h"
#include "app/ClientArea.h"
#include "app/MainLayout.h"
#include "app/QtClipboard.h"
#include "app/QtUserDialogs.h"
#include "dialogs/FrmMir.h"
#include "fileio/ShellLibrary.h"
#include "widgets/PictureBox.h"
#include "widgets/ToolIcons.h"
#include "widgets/WindowPlacement.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>

using namespace MainLayout;

namespace {

void useQtEvents(Services& services) {
    services.processEvents = [] { QCoreApplication::processEvents(); };
    services.setBusy = [](bool busy) {
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    };
}

QLabel* addLabel(QWidget* parent, const QString& name, const QRect& at, const QString& text = {}) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setGeometry(at);
    return label;
}

QLabel* addImage(QWidget* parent, const QString& name, QPoint at, const QPixmap& pixmap) {
    auto* image = new QLabel(parent);
    image->setObjectName(name);
    image->setPixmap(pixmap);
    image->setGeometry(QRect(at, pixmap.size()));
    return image;
}

} // namespace

frmMain::frmMain(EditorDialogs* dialogs, ClipboardService* clipboard)
    : ownDialogs_(dialogs ? nullptr : std::make_unique<QtUserDialogs>(this)),
      ownClipboard_(clipboard ? nullptr : std::make_unique<QtClipboard>()),
      editor_(dialogs ? *dialogs : *ownDialogs_, clipboard ? *clipboard : *ownClipboard_) {
    useQtEvents(editor_.services());
    const QColor face = palette().color(QPalette::Button);
    editor_.canvas().buttonFace = rgb(face.red(), face.green(), face.blue());
    setObjectName("frmMain");
    setWindowIcon(ToolIcons::icon(1));
    setAcceptDrops(true);
    menus.build(menuBar());
    buildClient();
    connectMenus();

    TmrEnable = new QTimer(this);
    TmrEnable->setObjectName("TmrEnable");
    TmrEnable->setInterval(100);
    connect(TmrEnable, &QTimer::timeout, this, [this] {
        PicMain->setEnabled(true);
        TmrEnable->stop();
    });
    editor_.files().disableCanvas = [this] { PicMain->setEnabled(false); };
    editor_.files().startEnableTimer = [this] { TmrEnable->start(); };
}

frmMain::~frmMain() = default;

void frmMain::buildClient() {
    auto* client = new ClientArea(this);
    setCentralWidget(client);

    PicMain = new PictureBox(QStringLiteral("PicMain"), client);
    PicMain->move(kCanvas);
    PicMain->setMouseTracking(true); // the read-out follows the pointer
    connect(PicMain, &PictureBox::mouseDown, this, [this](int button, QPointF p) {
        run([&] { editor_.tools().mouseDown(button, qRound(p.x()), qRound(p.y())); });
    });
    connect(PicMain, &PictureBox::mouseMove, this, [this](int buttons, QPointF p) {
        run([&] { editor_.tools().mouseMove(buttons, qRound(p.x()), qRound(p.y())); });
    });
    connect(PicMain, &PictureBox::mouseUp, this, [this](int button, QPointF p) {
        run([&] { editor_.tools().mouseUp(button, qRound(p.x()), qRound(p.y())); });
    });

    PicIcon = new PictureBox(QStringLiteral("PicIcon"), client);
    ImgXY = addImage(client, QStringLiteral("ImgXY"), kImgXY, ToolIcons::pointerImage());
    ImgToXY = addImage(client, QStringLiteral("ImgToXY"), kImgToXY, ToolIcons::dragImage());
    ReadoutXY = addLabel(client, QStringLiteral("ReadoutXY"), kReadoutXYText);
    ReadoutToXY = addLabel(client, QStringLiteral("ReadoutToXY"), kReadoutToXYText);
    buildToolButtons(client);

    const ColourPickers& pickers = editor_.pickers();
    PicPal =
        addPicker(client, QStringLiteral("PicPal"), kPal, pickers.PicPal, ColourPickers::Chart);
    PicGreyPal = addPicker(client, QStringLiteral("PicGreyPal"), kGreyPal, pickers.PicGreyPal,
                           ColourPickers::GreyRamp);
    PicMiniPal = addPicker(client, QStringLiteral("PicMiniPal"), kMiniPal, pickers.PicMiniPal,
                           ColourPickers::MiniPalette);
    PicScreen = addPicker(client, QStringLiteral("PicScreen"), kScreen,
                          ColourPickers::swatch(kTransparentColour), ColourPickers::Transparent);
    PicScreen->setToolTip(QStringLiteral("Transparent"));
    addLabel(client, QStringLiteral("LblTransparent"), kScreenLabel, QStringLiteral("Transparent"));

    PicLeft = new PictureBox(QStringLiteral("PicLeft"), client);
    PicLeft->move(kLeft);
    PicLeft->setToolTip(QStringLiteral("Left Mouse-Button Color"));
    PicRight = new PictureBox(QStringLiteral("PicRight"), client);
    PicRight->move(kRight);
    PicRight->setToolTip(QStringLiteral("Right Mouse-Button Color"));
    addLabel(client, QStringLiteral("LblLeft"), kLeftLabel, QStringLiteral("Left"))
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addLabel(client, QStringLiteral("LblRight"), kRightLabel, QStringLiteral("Right"))
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

PictureBox* frmMain::addPicker(QWidget* client, const QString& name, QPoint at, const Plane& plane,
                               int picker) {
    auto* box = new PictureBox(name, client);
    box->move(at);
    box->setPlane(plane);
    box->setConfined(true);
    const auto which = static_cast<ColourPickers::Picker>(picker);
    connect(box, &PictureBox::mouseDown, this, [this, which](int button, QPointF p) {
        run([&] {
            editor_.pickers().mouseDown(which, button, qRound(p.x()), qRound(p.y()),
                                        editor_.colours());
        });
    });
    connect(box, &PictureBox::mouseMove, this, [this, which](int buttons, QPointF p) {
        if (buttons == 0)
            return;
        run([&] {
            editor_.pickers().mouseMove(which, buttons, qRound(p.x()), qRound(p.y()),
                                        editor_.colours());
        });
    });
    return box;
}

void frmMain::buildToolButtons(QWidget* client) {
    // The chosen tool is pressed in and outlined, so it is unmistakable among
    // the raised others.
    client->setStyleSheet(
        QStringLiteral("QToolButton#OptTool { border: 1px outset palette(mid); border-radius: 2px;"
                       " background: palette(button); }"
                       "QToolButton#OptTool:checked { border: 2px inset palette(shadow);"
                       " background: palette(midlight); }"));
    auto* group = new QButtonGroup(this);
    group->setExclusive(true);
    const int inset = (kToolCell - kToolButton) / 2;
    for (int i = 0; i < ToolIcons::kToolCount; ++i) {
        auto* button = new QToolButton(client);
        button->setObjectName("OptTool");
        button->setProperty("index", i);
        button->setCheckable(true);
        button->setIcon(ToolIcons::icon(i));
        button->setIconSize(QSize(ToolIcons::kIconSize, ToolIcons::kIconSize));
        button->setToolTip(ToolIcons::toolName(i));
        button->setAutoRaise(false);
        button->setGeometry(toolCell(i).adjusted(inset, inset, -inset, -inset));
        group->addButton(button, i);
        connect(button, &QToolButton::clicked, this,
                [this, i] { run([&] { editor_.tools().chooseTool(i); }); });
        OptTool[i] = button;
    }
}

void frmMain::connectMenus() {
    for (int i = 0; i < 3; ++i)
        connect(menus.MnuIconSize[i], &QAction::triggered, this,
                [this, i] { run([&] { editor_.newIcon(i); }); });
    connect(menus.MnuOpen, &QAction::triggered, this,
            [this] { run([&] { editor_.files().open(); }); });
    connect(menus.MnuExtract, &QAction::triggered, this,
            [this] { run([&] { editor_.extraction().run(); }); });
    connect(menus.MnuSave, &QAction::triggered, this,
            [this] { run([&] { editor_.files().save(); }); });
    connect(menus.MnuSaveAs, &QAction::triggered, this,
            [this] { run([&] { editor_.files().saveAs(); }); });
    connect(menus.MnuSaveAsBitmap, &QAction::triggered, this,
            [this] { run([&] { editor_.files().saveAsBitmap(); }); });
    connect(menus.MnuSaveAsCursor, &QAction::triggered, this,
            [this] { run([&] { editor_.files().saveAsCursor(); }); });
    for (int i = 1; i < 5; ++i)
        connect(menus.MnuRecent[i], &QAction::triggered, this,
                [this, i] { run([&] { editor_.recentClick(i); }); });
    connect(menus.MnuCreateResource, &QAction::triggered, this, &frmMain::createMultiIconResource);
    connect(menus.MnuExit, &QAction::triggered, this, &QWidget::close);
    connect(menus.MnuFile, &QMenu::aboutToShow, this, &frmMain::refreshRecentMenu);

    for (int i = 0; i < 11; ++i)
        if (!menus.MnuEditAction[i]->isSeparator())
            connect(menus.MnuEditAction[i], &QAction::triggered, this,
                    [this, i] { run([&] { editor_.editAction(static_cast<EditAction>(i)); }); });
    connect(menus.MnuEdit, &QMenu::aboutToShow, this, [this] { enableEditMenu(true); });
    // The greying is only shown while the menu is open: the shortcuts stay
    // live, and the core leaves alone what has nothing to act on.
    connect(menus.MnuEdit, &QMenu::aboutToHide, this, [this] { enableEditMenu(false); });

    Operations& operations = editor_.operations();
    for (QAction* item : menus.MnuImageAction) {
        const auto action = static_cast<ImageAction>(item->property("index").toInt());
        connect(item, &QAction::triggered, this,
                [this, &operations, action] { run([&] { operations.imageAction(action); }); });
    }
    // Only the reflections have anything to grey, and they have no shortcuts.
    connect(menus.MnuImage, &QMenu::aboutToShow, this, [this, &operations] {
        for (QAction* item : menus.MnuImageAction)
            item->setEnabled(operations.imageActionEnabled(
                static_cast<ImageAction>(item->property("index").toInt())));
    });
    for (QAction* item : menus.MnuColorAction) {
        const auto action = static_cast<ColorAction>(item->property("index").toInt());
        connect(item, &QAction::triggered, this,
                [this, &operations, action] { run([&] { operations.colorAction(action); }); });
    }
    for (QAction* item : menus.MnuFxAction) {
        const auto action = static_cast<FxAction>(item->property("index").toInt());
        connect(item, &QAction::triggered, this,
                [this, &operations, action] { run([&] { operations.fxAction(action); }); });
    }

    connect(menus.MnuContents, &QAction::triggered, this, &frmMain::showProductHelp);
    connect(menus.MnuAbout, &QAction::triggered, this, &frmMain::showAbout);
}

template <typename Command> void frmMain::run(Command command) {
    command();
    syncFromCore();
}

void frmMain::refreshRecentMenu() {
    for (std::size_t i = 0; i < menus.MnuRecent.size(); ++i) {
        const ModRecent::Item& item = editor_.recent().MnuRecent[i];
        if (i > 0)
            menus.MnuRecent[i]->setText(item.caption);
        menus.MnuRecent[i]->setVisible(item.visible);
    }
}

void frmMain::enableEditMenu(bool asTheCoreSays) {
    for (int i = 0; i < 11; ++i)
        if (!menus.MnuEditAction[i]->isSeparator())
            menus.MnuEditAction[i]->setEnabled(
                !asTheCoreSays || editor_.editActionEnabled(static_cast<EditAction>(i)));
}

QString frmMain::productHelpText() {
    return QStringLiteral("You will find the product documentation on the product page.\n"
                          "It is the README.md file at the top of Brevik's source tree.");
}

void frmMain::showProductHelp() {
    editor_.services().dialogs.showMessage(QStringLiteral("Brevik Deluxe"), productHelpText(),
                                           MessageIcon::Information);
}

void frmMain::createMultiIconResource() {
    // The builder works on files alone; the document is left as it is.
    FrmMir form(editor_.services().dialogs, editor_.recentFolder(), this);
    form.exec();
}

void frmMain::showAbout() {
    auto* about = new AboutBox(this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void frmMain::startUp(const QString& commandLine) {
    editor_.startUp(); // the stored settings, the palettes and a new 32 x 32 icon
    editor_.extraction().startFile = ShellLibrary::locate();
    syncFromCore();
    refreshRecentMenu();
    menus.MnuExit->setText(menus.MnuExit->text() + QStringLiteral("\tAlt+F4"));
    // The client area is what the layout needs; a window manager's frame
    // comes on top of it.
    setFixedSize(kClientSize.width(), kClientSize.height() + menuBar()->sizeHint().height());
    WindowPlacement::place(*this);
    // The tool buttons never take the keyboard focus, so keys stay with the
    // window and its menus.
    for (QToolButton* button : OptTool)
        button->setFocusPolicy(Qt::NoFocus);
    show();
    QCoreApplication::processEvents();
    run([&] { editor_.commandLineOpen(commandLine); });
}

void frmMain::syncFromCore() {
    const Canvas& canvas = editor_.canvas();
    PicMain->setCellSize(editor_.doc().zoom);
    PicMain->setPlane(canvas.PicMain);
    PicIcon->setPlane(canvas.PicIcon);
    PicIcon->move(canvas.previewLeft, canvas.previewTop);
    PicLeft->setPlane(ColourPickers::swatch(editor_.colours().value[0]));
    PicRight->setPlane(ColourPickers::swatch(editor_.colours().value[1]));
    ReadoutXY->setText(editor_.readoutXY());
    ReadoutToXY->setText(editor_.readoutToXY());
    setWindowTitle(editor_.windowTitle());
    const int tool = editor_.tools().currentTool;
    if (tool >= 0 && tool < ToolIcons::kToolCount && !OptTool[tool]->isChecked())
        OptTool[tool]->setChecked(true);
    if (editor_.tools().canvasCursorTool != shownCursorTool_) {
        shownCursorTool_ = editor_.tools().canvasCursorTool;
        PicMain->setCursor(ToolIcons::cursor(shownCursorTool_));
    }
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!shutDown_ && !editor_.shutDown()) {
        syncFromCore();
        event->ignore();
        return;
    }
    shutDown_ = true;
    event->accept();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    run([&] { editor_.dropFiles(paths); });
}
