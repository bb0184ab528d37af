#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <set>

// brevik-cli's arguments: a verb, options ("--json", "--size 32",
// "--size=32", "-o DIR") and the file names, in any order; "--" ends the
// options. A mistake is bad usage, told in one line.
class CommandLine {
  public:
    // valued: the options that take a value; flags: those that do not.
    // Options neither names are bad usage.
    static CommandLine parse(const QStringList& arguments, const std::set<QString>& valued,
                             const std::set<QString>& flags);

    bool ok() const { return error.isEmpty(); }
    bool has(const QString& option) const { return options.count(option) > 0; }
    std::optional<QString> value(const QString& option) const;

    QString error;
    QStringList files;
    std::map<QString, QString> options;
};
