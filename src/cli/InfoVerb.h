#pragma once

#include "cli/CliReport.h"
#include "cli/CommandLine.h"

// brevik-cli info [--json] FILE...: one line per image of every icon the
// files hold (icon files, executables and libraries, icon libraries,
// animated cursors): file, icon/index, size, depth, kind, hot spot.
class InfoVerb {
  public:
    static int run(const CommandLine& line, CliReport& report);
};
