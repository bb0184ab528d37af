#include "cli/CommandLine.h"

CommandLine CommandLine::parse(const QStringList& arguments, const std::set<QString>& valued,
                               const std::set<QString>& flags) {
    CommandLine line;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (optionsEnded || !argument.startsWith(QLatin1Char('-')) || argument == "-") {
            line.files << argument;
            continue;
        }
        if (argument == "--") {
            optionsEnded = true;
            continue;
        }
        QString name = argument.section(QLatin1Char('='), 0, 0);
        const bool inlineValue = argument.contains(QLatin1Char('='));
        if (flags.count(name) && !inlineValue) {
            line.options[name] = QString();
        } else if (valued.count(name)) {
            if (inlineValue) {
                line.options[name] = argument.section(QLatin1Char('='), 1);
            } else if (i + 1 < arguments.size()) {
                line.options[name] = arguments[++i];
            } else {
                line.error = QStringLiteral("option %1 needs a value").arg(name);
                return line;
            }
        } else {
            line.error = QStringLiteral("unknown option %1").arg(argument);
            return line;
        }
    }
    return line;
}

std::optional<QString> CommandLine::value(const QString& option) const {
    const auto found = options.find(option);
    if (found == options.end())
        return std::nullopt;
    return found->second;
}
