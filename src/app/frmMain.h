#pragma once

#include "app/MainMenus.h"
#include "session/Editor.h"

#include <QMainWindow>

#include <array>
#include <memory>

class PictureBox;
class QLabel;
class QTimer;
class QToolButton;

// The main window: holds the controls, forwards menu, mouse, key and drop
// events to the editor core and puts on screen what the core composed.
class frmMain : public QMainWindow {
    Q_OBJECT
  public:
    // The editor asks its questions through dialogs and reaches the clipboard
    // through clipboard; when they are not given, the window answers with real
    // Qt dialogs and the system clipboard. A test passes doubles.
    explicit frmMain(EditorDialogs* dialogs = nullptr, ClipboardService* clipboard = nullptr);
    ~frmMain() override;

    // The window's load, in order: settings and the new 32 x 32 icon, the
    // Exit caption, size, placement, the tool buttons, showing, and last the
    // file named on the command line (the arguments as one string).
    void startUp(const QString& commandLine);

    Editor& editor() { return editor_; }

    static QString productHelpText();

    MainMenus menus;
    PictureBox* PicMain;
    PictureBox* PicIcon;
    PictureBox* PicPal;
    PictureBox* PicGreyPal;
    PictureBox* PicMiniPal;
    PictureBox* PicScreen;
    PictureBox* PicLeft;
    PictureBox* PicRight;
    std::array<QToolButton*, 12> OptTool{};
    QLabel* ImgXY;
    QLabel* ImgToXY;
    QLabel* ReadoutXY;
    QLabel* ReadoutToXY;
    QTimer* TmrEnable;

  public slots:
    // Shows what the core has composed: canvas, preview, swatches, read-outs,
    // title, the chosen tool and the canvas pointer. Runs after every event
    // the window forwards.
    void syncFromCore();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void buildClient();
    void buildToolButtons(QWidget* client);
    PictureBox* addPicker(QWidget* client, const QString& name, QPoint at, const Plane& plane,
                          int picker);
    void connectMenus();
    void refreshRecentMenu();
    void enableEditMenu(bool asTheCoreSays);
    void showProductHelp();
    void showAbout();
    void createMultiIconResource();
    // Runs a command of the core and shows its outcome.
    template <typename Command> void run(Command command);

    std::unique_ptr<EditorDialogs> ownDialogs_;
    std::unique_ptr<ClipboardService> ownClipboard_;
    Editor editor_;
    int shownCursorTool_ = -1;
    bool shutDown_ = false;
};
