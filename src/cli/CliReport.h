#pragma once

#include "fileio/IconFileTypes.h"

#include <QByteArray>
#include <QString>

// What a verb tells the user: its output, gathered and written to stdout in
// one go, and one line on stderr per file that failed, which makes the exit
// status 1 while the other files are still processed.
class CliReport {
  public:
    ~CliReport();

    void print(const QString& line);
    void write(const QByteArray& bytes);
    // The editor's message for the failure, on one line.
    void fail(const QString& message);
    // Why a file opened as an icon container gave none: the editor's texts.
    void failToRead(const QString& path, ReadFault fault);

    // Bad usage: one line on stderr; gives the exit status 2.
    int usage(const QString& message);

    int status() const { return status_; }

  private:
    void flush();

    QByteArray out_;
    int status_ = 0;
};
