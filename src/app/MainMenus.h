#pragma once

#include <QString>

#include <array>

class QAction;
class QMenu;
class QMenuBar;
class QObject;

// frmMain's menu bar. Every item's objectName is its control name; the
// elements of a control array (MnuIconSize, MnuRecent, MnuEditAction,
// MnuImageAction, MnuColorAction, MnuFxAction) share the name and carry their
// position in the dynamic property "index", separators included.
struct MainMenus {
    // Fills the bar with the menus and items; no item is connected yet.
    void build(QMenuBar* bar);

    // The element of a control array, or nullptr.
    static QAction* element(QObject* root, const QString& name, int index);

    QMenu* MnuFile = nullptr;
    QMenu* MnuNew = nullptr;
    std::array<QAction*, 3> MnuIconSize{};
    QAction* MnuOpen = nullptr;
    QAction* MnuExtract = nullptr;
    QAction* MnuSave = nullptr;
    QAction* MnuSaveAs = nullptr;
    QAction* MnuSaveAsBitmap = nullptr;
    QAction* MnuSaveAsCursor = nullptr;
    QAction* MnuCreateResource = nullptr;
    std::array<QAction*, 5> MnuRecent{};
    QAction* MnuExit = nullptr;

    QMenu* MnuEdit = nullptr;
    std::array<QAction*, 11> MnuEditAction{};
    QMenu* MnuImage = nullptr;
    std::array<QAction*, 10> MnuImageAction{};
    QMenu* MnuColor = nullptr;
    std::array<QAction*, 4> MnuColorAction{};
    QMenu* MnuFx = nullptr;
    std::array<QAction*, 3> MnuFxAction{};

    QMenu* MnuHelp = nullptr;
    QAction* MnuContents = nullptr;
    QAction* MnuAbout = nullptr;
};
