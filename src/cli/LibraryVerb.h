#pragma once

#include "cli/CliReport.h"
#include "cli/CommandLine.h"

// brevik-cli library OUT.icl FILE.ico...: a 16-bit icon library holding one
// icon group per icon file, in the order given.
class LibraryVerb {
  public:
    static int run(const CommandLine& line, CliReport& report);
};
