#include "app/frmMain.h"
#include "imaging/QtPngDecoder.h"
#include "widgets/ToolIcons.h"

#include <QApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace {

bool hasDisplay() {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return true;
#else
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#endif
}

// Until the window system answers, Qt's complaints about it would end in an
// abort with a backtrace; keep the first one and say it in one line instead.
QString firstComplaint;

void startUpMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (firstComplaint.isEmpty())
        firstComplaint = message.section(QLatin1Char('\n'), 0, 0);
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "brevik: cannot open the display: %s\n", qPrintable(firstComplaint));
    std::_Exit(1);
}

} // namespace

int main(int argc, char** argv) {
    if (!hasDisplay()) {
        std::fprintf(stderr, "brevik: no display found (DISPLAY is not set); start it from a "
                             "desktop session or under Xvfb.\n");
        return 1;
    }
    const QtMessageHandler previous = qInstallMessageHandler(startUpMessages);
    QApplication app(argc, argv);
    qInstallMessageHandler(previous);
    QApplication::setWindowIcon(ToolIcons::icon(1));
    const QtPngDecoder png;
    PngDecoder::install(&png);

    frmMain window;
    // The command line is one path, taken as it stands.
    window.startUp(QApplication::arguments().mid(1).join(QLatin1Char(' ')));
    return QApplication::exec();
}
