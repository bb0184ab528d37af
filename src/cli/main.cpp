#include "cli/BuildVerb.h"
#include "cli/CliReport.h"
#include "cli/CommandLine.h"
#include "cli/ConvertVerb.h"
#include "cli/ExtractVerb.h"
#include "cli/InfoVerb.h"
#include "cli/LibraryVerb.h"
#include "cli/PictureReader.h"
#include "cli/Usage.h"

#include <QCoreApplication>

#include <cstdio>
#include <functional>
#include <map>

namespace {

struct Verb {
    std::set<QString> valued;
    std::set<QString> flags;
    std::function<int(const CommandLine&, CliReport&)> run;
};

const std::map<QString, Verb>& verbs() {
    static const std::map<QString, Verb> all{
        {"info", {{}, {"--json"}, InfoVerb::run}},
        {"convert", {{"--size", "--index", "--hotspot"}, {}, ConvertVerb::run}},
        {"extract", {{"--size", "-o", "--output"}, {}, ExtractVerb::run}},
        {"build", {{}, {}, BuildVerb::run}},
        {"library", {{}, {}, LibraryVerb::run}},
    };
    return all;
}

int printHelp() {
    std::fputs(cliUsage().toUtf8().constData(), stdout);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    // No display and no platform plugin: image readers work without them.
    QCoreApplication app(argc, argv);
    const PictureReader::LazyPngDecoder png;
    PngDecoder::install(&png);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    CliReport report;
    if (arguments.isEmpty())
        return report.usage(QStringLiteral("no verb given"));
    const QString& verbName = arguments.front();
    if (verbName == "-h" || verbName == "--help" || verbName == "help")
        return printHelp();
    if (verbName == "--version") {
        std::printf("brevik-cli %s\n", BREVIK_VERSION);
        return 0;
    }
    const auto verb = verbs().find(verbName);
    if (verb == verbs().end())
        return report.usage(QStringLiteral("unknown verb %1").arg(verbName));
    const QStringList rest = arguments.mid(1);
    if (rest.contains("-h") || rest.contains("--help"))
        return printHelp();
    CommandLine line = CommandLine::parse(rest, verb->second.valued, verb->second.flags);
    if (!line.ok())
        return report.usage(line.error);
    if (line.has("--output"))
        line.options["-o"] = line.options["--output"];
    if ((verbName == "info" || verbName == "extract") && line.files.isEmpty())
        return report.usage(verbName + QStringLiteral(" needs at least one file"));
    return verb->second.run(line, report);
}
