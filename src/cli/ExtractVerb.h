#pragma once

#include "cli/CliReport.h"
#include "cli/CommandLine.h"

// brevik-cli extract [--size 32] [-o DIR] FILE...: every icon of every file
// as an .ico (or .cur) of its own, named after the file and the icon, its
// images byte for byte as stored; with --size 32 the 32 x 32 picture the
// editor's Extract gives, written as Save As would.
class ExtractVerb {
  public:
    static int run(const CommandLine& line, CliReport& report);
};
