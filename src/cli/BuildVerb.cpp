#include "cli/BuildVerb.h"

#include "fileio/ModFileIO.h"
#include "fileio/MultiIconResource.h"

namespace {

using Outcome = MultiIconResource::AddOutcome;

// The builder's message for a file it did not take, on one line; the
// window's hint about right-clicking to delete has no place here.
QString refusal(Outcome outcome, const QString& path) {
    switch (outcome) {
    case Outcome::LimitReached:
        return path + QStringLiteral(": A maximum of ten icons has been reached.");
    case Outcome::NotAnIcon:
        return path + QStringLiteral(" is not a valid icon file.");
    case Outcome::NoImages:
        return QStringLiteral("Unable to read data from ") + path;
    case Outcome::MultiImage:
        return path + QStringLiteral(" is a multi icon resource. Only single icons can be loaded.");
    case Outcome::CannotLoad:
    case Outcome::Added:
        break;
    }
    return path + QStringLiteral(": Unable to load icon.");
}

} // namespace

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
        if (outcome != Outcome::Added)
            report.fail(refusal(outcome, path));
    }
    // Create is offered only once a slot is filled.
    if (resource.filledCount() == 0 || !ModFileIO::saveFile(out, resource.toBytes()))
        report.fail(QStringLiteral("Unable to create the file ") + out);
    return report.status();
}
