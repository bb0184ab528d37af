#include "cli/CliReport.h"

#include <cstdio>

namespace {

// Output is written in large pieces; a listing of thousands of images would
// otherwise sit in memory whole.
constexpr qsizetype kFlushBytes = 1 << 16;

} // namespace

CliReport::~CliReport() {
    flush();
}

void CliReport::print(const QString& line) {
    write(line.toUtf8() + '\n');
}

void CliReport::write(const QByteArray& bytes) {
    out_ += bytes;
    if (out_.size() >= kFlushBytes)
        flush();
}

void CliReport::fail(const QString& message) {
    // The editor's two-line messages (the dimension message) become one line.
    QString line = message;
    line.replace(QStringLiteral("\r\n\r\n"), QStringLiteral(" "));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    flush();
    std::fprintf(stderr, "brevik-cli: %s\n", line.toUtf8().constData());
    status_ = 1;
}

void CliReport::failToRead(const QString& path, ReadFault fault) {
    if (fault == ReadFault::Unreadable || fault == ReadFault::TooLarge)
        fail(QStringLiteral("Unable to read data from ") + path);
    else
        fail(path + QStringLiteral(" is not a valid icon file."));
}

int CliReport::usage(const QString& message) {
    flush();
    std::fprintf(stderr, "brevik-cli: %s (see brevik-cli --help)\n", message.toUtf8().constData());
    status_ = 2;
    return status_;
}

void CliReport::flush() {
    if (out_.isEmpty())
        return;
    std::fwrite(out_.constData(), 1, static_cast<size_t>(out_.size()), stdout);
    std::fflush(stdout);
    out_.clear();
}
