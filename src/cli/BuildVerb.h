#pragma once

#include "cli/CliReport.h"
#include "cli/CommandLine.h"

// brevik-cli build OUT.ico ICON.ico...: the multi icon builder's Open for
// each file in turn, then its Create, giving the same bytes.
class BuildVerb {
  public:
    static int run(const CommandLine& line, CliReport& report);
};
