#include "MainWindowFixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

// The menu entries as "name(index) caption [shortcut]", "-" for a separator,
// a submenu's entries indented by two blanks.
void describe(const QList<QAction*>& actions, const QString& indent, QStringList& into) {
    for (QAction* action : actions) {
        QString line = indent + action->objectName();
        if (action->property("index").isValid())
            line += QStringLiteral("(%1)").arg(action->property("index").toInt());
        line += ' ' + (action->isSeparator() ? QStringLiteral("-") : action->text());
        if (!action->shortcut().isEmpty())
            line += " [" + action->shortcut().toString() + ']';
        into << line;
        if (action->menu())
            describe(action->menu()->actions(), indent + "  ", into);
    }
}

class MainMenusTest : public MainWindowFixture {};

TEST_F(MainMenusTest, MenuBarHoldsEveryItemWithItsNameCaptionAndShortcut) {
    // clang-format off
    const QStringList expected = {
        "MnuFile &File", "  MnuNew &New Icon", "    MnuIconSize(0) &16 x 16 [Ctrl+F1]",
        "    MnuIconSize(1) &32 x 32 [Ctrl+F2]", "    MnuIconSize(2) &48 x 48 [Ctrl+F3]",
        "  MnuSep1 -", "  MnuOpen &Open [Ctrl+O]", "  MnuExtract &Extract [Ctrl+E]", "  MnuSep2 -",
        "  MnuSave &Save [Ctrl+S]", "  MnuSaveAs Save &As [Ctrl+A]",
        "  MnuSaveAsBitmap Save As &Bitmap [Ctrl+B]", "  MnuSaveAsCursor Save As &Cursor [Ctrl+R]",
        "  MnuSep3 -", "  MnuCreateResource Create &Multi Icon Resource [Ctrl+M]",
        "  MnuRecent(0) -", "  MnuRecent(1) ", "  MnuRecent(2) ", "  MnuRecent(3) ",
        "  MnuRecent(4) ", "  MnuSep4 -", "  MnuExit E&xit\tAlt+F4",
        "MnuEdit &Edit", "  MnuEditAction(0) &Undo [Ctrl+Z]", "  MnuEditAction(1) &Redo [Ctrl+Y]",
        "  MnuEditAction(2) -", "  MnuEditAction(3) Cu&t [Ctrl+X]",
        "  MnuEditAction(4) &Copy [Ctrl+C]", "  MnuEditAction(5) &Paste [Ctrl+V]",
        "  MnuEditAction(6) Paste &Opaque", "  MnuEditAction(7) &Delete [Del]",
        "  MnuEditAction(8) -", "  MnuEditAction(9) D&eselect [Ctrl+K]",
        "  MnuEditAction(10) &Select All [Ctrl+T]",
        "MnuImage &Image", "  MnuImageAction(0) Flip &Horizontal [Ctrl+H]",
        "  MnuImageAction(1) Flip &Vertical [Ctrl+L]", "  MnuImageAction(2) -",
        "  MnuImageAction(3) Rotate 90\u00B0 &Left [Ctrl+F]",
        "  MnuImageAction(4) Rotate 90\u00B0 &Right [Ctrl+G]", "  MnuImageAction(5) -",
        "  MnuImageAction(6) Reflect Left In Right", "  MnuImageAction(7) Reflect Right In Left",
        "  MnuImageAction(8) Reflect Top In Bottom", "  MnuImageAction(9) Reflect Bottom In Top",
        "MnuColor &Color", "  MnuColorAction(0) &Invert [Shift+F1]",
        "  MnuColorAction(1) &Greyscale [Shift+F2]",
        "  MnuColorAction(2) &Adjust Colors [Shift+F3]",
        "  MnuColorAction(3) Gradient &Transparency [Shift+F4]",
        "MnuFx Effec&ts", "  MnuFxAction(0) &Add Text [F2]", "  MnuFxAction(1) &Buttonize [F3]",
        "  MnuFxAction(2) &Capture [F4]",
        "MnuHelp &Help", "  MnuContents &Product Help [F1]", "  MnuSep5 -",
        "  MnuAbout &About [Alt+Backspace]"
    };
    // clang-format on
    QStringList actual;
    describe(window->menuBar()->actions(), QString(), actual);
    EXPECT_EQ(actual.join('\n').toStdString(), expected.join('\n').toStdString());
    EXPECT_EQ(MainMenus::element(window.get(), "MnuEditAction", 10),
              window->menus.MnuEditAction[10]);
    EXPECT_EQ(MainMenus::element(window.get(), "MnuEditAction", 11), nullptr);
}

// What the core refuses is ClipboardTest's; here the menus ask as they open.
TEST_F(MainMenusTest, MenusAreBroughtUpToDateAsTheyOpen) {
    editor().recent().AddRecent(folder.filePath("star.ico"));
    editor().recent().AddRecent(folder.filePath("moon.ico"));
    emit window->menus.MnuFile->aboutToShow();
    QStringList shown;
    for (QAction* entry : window->menus.MnuRecent)
        shown << (entry->isVisible() ? entry->text() : "hidden");
    EXPECT_EQ(shown, (QStringList{"", "&1 moon.ico", "&2 star.ico", "hidden", "hidden"}));

    const auto states = [this] {
        std::string text;
        for (QAction* action : window->menus.MnuEditAction)
            text += action->isSeparator() ? '-' : action->isEnabled() ? 'E' : '.';
        return text;
    };
    emit window->menus.MnuEdit->aboutToShow();
    EXPECT_EQ(states(), "..-.....-.E"); // nothing to undo, select or paste
    emit window->menus.MnuEdit->aboutToHide();
    EXPECT_EQ(states(), "EE-EEEEE-EE");
}

TEST_F(MainMenusTest, ProductHelpTellsWhereTheDocumentationIs) {
    QTest::keyClick(window.get(), Qt::Key_F1);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    const auto& help = dialogs.messages[0];
    EXPECT_EQ(std::pair(help.title, help.icon),
              std::pair(QString("Brevik Deluxe"), MessageIcon::Information));
    EXPECT_TRUE(help.text.startsWith("You will find the product documentation") &&
                help.text.contains("README"))
        << help.text.toStdString();
}

} // namespace
