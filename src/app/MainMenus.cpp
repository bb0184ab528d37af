#include "app/MainMenus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

struct Item {
    const char* caption; // nullptr for a separator
    QKeySequence shortcut;
};

QMenu* addMenu(QMenuBar* bar, const char* name, const QString& caption) {
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(QString::fromLatin1(name));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    return menu;
}

QAction* addItem(QMenu* menu, const char* name, const QString& caption,
                 const QKeySequence& shortcut = {}) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    return action;
}

QAction* addSeparator(QMenu* menu, const char* name) {
    QAction* action = menu->addSeparator();
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

// One control array: items and separators in order, each tagged with its index.
template <std::size_t N>
void addArray(QMenu* menu, const char* name, const std::array<Item, N>& items,
              std::array<QAction*, N>& into) {
    for (std::size_t i = 0; i < N; ++i) {
        QAction* action =
            items[i].caption
                ? addItem(menu, name, QString::fromUtf8(items[i].caption), items[i].shortcut)
                : addSeparator(menu, name);
        action->setProperty("index", static_cast<int>(i));
        into[i] = action;
    }
}

QKeySequence ctrl(Qt::Key key) {
    return QKeySequence(Qt::CTRL | key);
}
QKeySequence shift(Qt::Key key) {
    return QKeySequence(Qt::SHIFT | key);
}

} // namespace

QAction* MainMenus::element(QObject* root, const QString& name, int index) {
    for (QAction* action : root->findChildren<QAction*>(name))
        if (action->property("index").toInt() == index && action->property("index").isValid())
            return action;
    return nullptr;
}

void MainMenus::build(QMenuBar* bar) {
    MnuFile = addMenu(bar, "MnuFile", QStringLiteral("&File"));
    MnuNew = MnuFile->addMenu(QStringLiteral("&New Icon"));
    MnuNew->setObjectName(QStringLiteral("MnuNew"));
    MnuNew->menuAction()->setObjectName(QStringLiteral("MnuNew"));
    addArray<3>(MnuNew, "MnuIconSize",
                {{{"&16 x 16", ctrl(Qt::Key_F1)},
                  {"&32 x 32", ctrl(Qt::Key_F2)},
                  {"&48 x 48", ctrl(Qt::Key_F3)}}},
                MnuIconSize);
    addSeparator(MnuFile, "MnuSep1");
    MnuOpen = addItem(MnuFile, "MnuOpen", QStringLiteral("&Open"), ctrl(Qt::Key_O));
    MnuExtract = addItem(MnuFile, "MnuExtract", QStringLiteral("&Extract"), ctrl(Qt::Key_E));
    addSeparator(MnuFile, "MnuSep2");
    MnuSave = addItem(MnuFile, "MnuSave", QStringLiteral("&Save"), ctrl(Qt::Key_S));
    MnuSaveAs = addItem(MnuFile, "MnuSaveAs", QStringLiteral("Save &As"), ctrl(Qt::Key_A));
    MnuSaveAsBitmap =
        addItem(MnuFile, "MnuSaveAsBitmap", QStringLiteral("Save As &Bitmap"), ctrl(Qt::Key_B));
    MnuSaveAsCursor =
        addItem(MnuFile, "MnuSaveAsCursor", QStringLiteral("Save As &Cursor"), ctrl(Qt::Key_R));
    addSeparator(MnuFile, "MnuSep3");
    MnuCreateResource = addItem(MnuFile, "MnuCreateResource",
                                QStringLiteral("Create &Multi Icon Resource"), ctrl(Qt::Key_M));
    // The recent files: a separator and four entries, hidden until used.
    addArray<5>(MnuFile, "MnuRecent", {{{nullptr, {}}, {"", {}}, {"", {}}, {"", {}}, {"", {}}}},
                MnuRecent);
    for (QAction* recent : MnuRecent)
        recent->setVisible(false);
    addSeparator(MnuFile, "MnuSep4");
    // Start-up adds the shortcut text; the window system closes on Alt+F4.
    MnuExit = addItem(MnuFile, "MnuExit", QStringLiteral("E&xit"));

    MnuEdit = addMenu(bar, "MnuEdit", QStringLiteral("&Edit"));
    addArray<11>(MnuEdit, "MnuEditAction",
                 {{{"&Undo", ctrl(Qt::Key_Z)},
                   {"&Redo", ctrl(Qt::Key_Y)},
                   {nullptr, {}},
                   {"Cu&t", ctrl(Qt::Key_X)},
                   {"&Copy", ctrl(Qt::Key_C)},
                   {"&Paste", ctrl(Qt::Key_V)},
                   {"Paste &Opaque", {}},
                   {"&Delete", QKeySequence(Qt::Key_Delete)},
                   {nullptr, {}},
                   {"D&eselect", ctrl(Qt::Key_K)},
                   {"&Select All", ctrl(Qt::Key_T)}}},
                 MnuEditAction);

    MnuImage = addMenu(bar, "MnuImage", QStringLiteral("&Image"));
    addArray<10>(MnuImage, "MnuImageAction",
                 {{{"Flip &Horizontal", ctrl(Qt::Key_H)},
                   {"Flip &Vertical", ctrl(Qt::Key_L)},
                   {nullptr, {}},
                   {"Rotate 90\u00B0 &Left", ctrl(Qt::Key_F)},
                   {"Rotate 90\u00B0 &Right", ctrl(Qt::Key_G)},
                   {nullptr, {}},
                   {"Reflect Left In Right", {}},
                   {"Reflect Right In Left", {}},
                   {"Reflect Top In Bottom", {}},
                   {"Reflect Bottom In Top", {}}}},
                 MnuImageAction);

    MnuColor = addMenu(bar, "MnuColor", QStringLiteral("&Color"));
    addArray<4>(MnuColor, "MnuColorAction",
                {{{"&Invert", shift(Qt::Key_F1)},
                  {"&Greyscale", shift(Qt::Key_F2)},
                  {"&Adjust Colors", shift(Qt::Key_F3)},
                  {"Gradient &Transparency", shift(Qt::Key_F4)}}},
                MnuColorAction);

    MnuFx = addMenu(bar, "MnuFx", QStringLiteral("Effec&ts"));
    addArray<3>(MnuFx, "MnuFxAction",
                {{{"&Add Text", QKeySequence(Qt::Key_F2)},
                  {"&Buttonize", QKeySequence(Qt::Key_F3)},
                  {"&Capture", QKeySequence(Qt::Key_F4)}}},
                MnuFxAction);

    MnuHelp = addMenu(bar, "MnuHelp", QStringLiteral("&Help"));
    MnuContents =
        addItem(MnuHelp, "MnuContents", QStringLiteral("&Product Help"), QKeySequence(Qt::Key_F1));
    addSeparator(MnuHelp, "MnuSep5");
    MnuAbout = addItem(MnuHelp, "MnuAbout", QStringLiteral("&About"),
                       QKeySequence(Qt::ALT | Qt::Key_Backspace));
}
