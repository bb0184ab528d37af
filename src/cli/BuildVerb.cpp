#include "cli/BuildVerb.h"

#include "fileio/ModFileIO.h"
#include "fileio/MultiIconBuilder.h"
#include "fileio/MultiIconResource.h"

using Outcome = MultiIconResource::AddOutcome;

int BuildVerb::run(const CommandLine& line, CliReport& report) {
    if (line.files.size() < 2)
        return report.usage(QStringLiteral("build needs an output file and at least one icon"));
    const QString& out = line.files.front();
    MultiIconResource resource;
    for (const QString& path : line.files.mid(1)) {
        ReadFault fault = ReadFault::None;
        const auto bytes = ModFileIO::readFile(path, &fault);
        if (!bytes) {
            report.failToRead(path, fault);
            continue;
        }
        const Outcome outcome = resource.add(*bytes).outcome;
        if (outcome == Outcome::Added)
            continue;
        // The builder's own words; those that do not name the file get it.
        const QString message = MultiIconBuilder::addMessage(outcome, path);
        report.fail(message.contains(path) ? message : path + QStringLiteral(": ") + message);
    }
    // Create is offered only once a slot is filled.
    if (resource.filledCount() == 0 || !ModFileIO::saveFile(out, resource.toBytes()))
        report.fail(QStringLiteral("Unable to create the file ") + out);
    return report.status();
}
