#include "MainWindowFixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace {

// One menu entry as "name(index) caption [shortcut]"; "-" is a separator and
// each level of submenu indents by two blanks.
void describe(const QList<QAction*>& actions, const QString& indent, QStringList& into) {
    for (QAction* action : actions) {
        QString line = indent + action->objectName();
        if (action->property("index").isValid())
            line += QStringLiteral("(%1)").arg(action->property("index").toInt());
        line += QLatin1Char(' ') + (action->isSeparator() ? QStringLiteral("-") : action->text());
        if (!action->shortcut().isEmpty())
            line += QStringLiteral(" [") + action->shortcut().toString() + QLatin1Char(']');
        into << line;
        if (action->menu())
            describe(action->menu()->actions(), indent + QStringLiteral("  "), into);
    }
}

class MainMenusTest : public MainWindowFixture {};

TEST_F(MainMenusTest, MenuBarHoldsEveryItemWithItsNameCaptionAndShortcut) {
    start();
    const QStringList expected = {
        "MnuFile &File",
        "  MnuNew &New Icon",
        "    MnuIconSize(0) &16 x 16 [Ctrl+F1]",
        "    MnuIconSize(1) &32 x 32 [Ctrl+F2]",
        "    MnuIconSize(2) &48 x 48 [Ctrl+F3]",
        "  MnuSep1 -",
        "  MnuOpen &Open [Ctrl+O]",
        "  MnuExtract &Extract [Ctrl+E]",
        "  MnuSep2 -",
        "  MnuSave &Save [Ctrl+S]",
        "  MnuSaveAs Save &As [Ctrl+A]",
        "  MnuSaveAsBitmap Save As &Bitmap [Ctrl+B]",
        "  MnuSaveAsCursor Save As &Cursor [Ctrl+R]",
        "  MnuSep3 -",
        "  MnuCreateResource Create &Multi Icon Resource [Ctrl+M]",
        "  MnuRecent(0) -",
        "  MnuRecent(1) ",
        "  MnuRecent(2) ",
        "  MnuRecent(3) ",
        "  MnuRecent(4) ",
        "  MnuSep4 -",
        "  MnuExit E&xit\tAlt+F4",
        "MnuEdit &Edit",
        "  MnuEditAction(0) &Undo [Ctrl+Z]",
        "  MnuEditAction(1) &Redo [Ctrl+Y]",
        "  MnuEditAction(2) -",
        "  MnuEditAction(3) Cu&t [Ctrl+X]",
        "  MnuEditAction(4) &Copy [Ctrl+C]",
        "  MnuEditAction(5) &Paste [Ctrl+V]",
        "  MnuEditAction(6) Paste &Opaque",
        "  MnuEditAction(7) &Delete [Del]",
        "  MnuEditAction(8) -",
        "  MnuEditAction(9) D&eselect [Ctrl+K]",
        "  MnuEditAction(10) &Select All [Ctrl+T]",
        "MnuImage &Image",
        "  MnuImageAction(0) Flip &Horizontal [Ctrl+H]",
        "  MnuImageAction(1) Flip &Vertical [Ctrl+L]",
        "  MnuImageAction(2) -",
        "  MnuImageAction(3) Rotate 90\u00B0 &Left [Ctrl+F]",
        "  MnuImageAction(4) Rotate 90\u00B0 &Right [Ctrl+G]",
        "  MnuImageAction(5) -",
        "  MnuImageAction(6) Reflect Left In Right",
        "  MnuImageAction(7) Reflect Right In Left",
        "  MnuImageAction(8) Reflect Top In Bottom",
        "  MnuImageAction(9) Reflect Bottom In Top",
        "MnuColor &Color",
        "  MnuColorAction(0) &Invert [Shift+F1]",
        "  MnuColorAction(1) &Greyscale [Shift+F2]",
        "  MnuColorAction(2) &Adjust Colors [Shift+F3]",
        "  MnuColorAction(3) Gradient &Transparency [Shift+F4]",
        "MnuFx Effec&ts",
        "  MnuFxAction(0) &Add Text [F2]",
        "  MnuFxAction(1) &Buttonize [F3]",
        "  MnuFxAction(2) &Capture [F4]",
        "MnuHelp &Help",
        "  MnuContents &Product Help [F1]",
        "  MnuSep5 -",
        "  MnuAbout &About [Alt+Backspace]",
    };
    QStringList actual;
    describe(window->menuBar()->actions(), QString(), actual);
    EXPECT_EQ(actual.join(QLatin1Char('\n')).toStdString(),
              expected.join(QLatin1Char('\n')).toStdString());
}

TEST_F(MainMenusTest, ExitShowsAltF4OnlyAfterStartUp) {
    EXPECT_EQ(window->menus.MnuExit->text(), "E&xit");
    start();
    EXPECT_EQ(window->menus.MnuExit->text(), "E&xit\tAlt+F4");
    // Only the text: the window system closes the window on Alt+F4.
    EXPECT_TRUE(window->menus.MnuExit->shortcut().isEmpty());
}

TEST_F(MainMenusTest, ElementsOfAControlArrayAreFoundByNameAndIndex) {
    start();
    EXPECT_EQ(element("MnuEditAction", 10), window->menus.MnuEditAction[10]);
    EXPECT_EQ(element("MnuIconSize", 2), window->menus.MnuIconSize[2]);
    EXPECT_EQ(element("MnuEditAction", 11), nullptr);
    EXPECT_EQ(element("MnuOpen", 0), nullptr);
}

TEST_F(MainMenusTest, EditMenuGreysWhatTheCoreRefusesOnlyWhileOpen) {
    start();
    auto enabledItems = [this] {
        QString states;
        for (QAction* action : window->menus.MnuEditAction)
            states += action->isSeparator() ? '-' : (action->isEnabled() ? 'E' : '.');
        return states.toStdString();
    };
    emit window->menus.MnuEdit->aboutToShow();
    // A new icon: nothing to undo or redo, no selection, nothing to paste.
    EXPECT_EQ(enabledItems(), "..-.....-.E");
    emit window->menus.MnuEdit->aboutToHide();
    EXPECT_EQ(enabledItems(), "EE-EEEEE-EE");

    clipboard.picture = Plane(4, 4, kWhite);
    editor().editAction(10); // Select All
    emit window->menus.MnuEdit->aboutToShow();
    EXPECT_EQ(enabledItems(), "..-EEEEE-EE");
}

TEST_F(MainMenusTest, RecentEntriesAreShownWhenTheFileMenuOpens) {
    start();
    editor().recent.AddRecent(folder.filePath("star.ico"));
    editor().recent.AddRecent(folder.filePath("moon.ico"));
    emit window->menus.MnuFile->aboutToShow();
    const auto& recent = window->menus.MnuRecent;
    EXPECT_TRUE(recent[0]->isVisible());
    EXPECT_EQ(recent[1]->text(), "&1 moon.ico");
    EXPECT_EQ(recent[2]->text(), "&2 star.ico");
    EXPECT_TRUE(recent[1]->isVisible());
    EXPECT_TRUE(recent[2]->isVisible());
    EXPECT_FALSE(recent[3]->isVisible());
    EXPECT_FALSE(recent[4]->isVisible());
}

TEST_F(MainMenusTest, ProductHelpTellsWhereTheDocumentationIs) {
    start();
    activate();
    QTest::keyClick(window.get(), Qt::Key_F1);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, "Brevik Deluxe");
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Information);
    const QStringList lines = dialogs.messages[0].text.split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], "You will find the product documentation on the product page.");
    EXPECT_TRUE(lines[1].contains("README")) << lines[1].toStdString();
}

} // namespace
