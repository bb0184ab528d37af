#include "app/frmMain.h"
#include "imaging/QtPngDecoder.h"
#include "widgets/ToolIcons.h"

#include <QApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <optional>

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

// --help and --version, answered before anything needs a display; another
// option is bad usage. Returns the exit status when the program is done.
std::optional<int> answerOptions(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "-h" || argument == "--help") {
            std::fputs("Usage: brevik [FILE.ico]\n"
                       "Edits small Windows icons and cursors; opens FILE.ico if given.\n"
                       "\n"
                       "  -h, --help     show this help and exit\n"
                       "  --version      show the version and exit\n"
                       "\n"
                       "brevik-cli reads and writes the same files from the command line.\n",
                       stdout);
            return 0;
        }
        if (argument == "--version") {
            std::printf("brevik %s\n", BREVIK_VERSION);
            return 0;
        }
        if (argument.startsWith('-') && argument != "-") {
            std::fprintf(stderr, "brevik: unknown option %s (see brevik --help)\n", argv[i]);
            return 2;
        }
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    if (const std::optional<int> status = answerOptions(argc, argv))
        return *status;
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
