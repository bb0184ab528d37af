#pragma once

#include "cli/CliReport.h"
#include "cli/CommandLine.h"

// brevik-cli convert [--size N] [--index N] [--hotspot X,Y] IN OUT: a PNG,
// BMP, ICO or CUR picture (told apart by content) written as .ico, .cur or
// .bmp (told by OUT's extension) by the editor's own writers, so the bytes
// equal what Save As writes for the same planes.
class ConvertVerb {
  public:
    static int run(const CommandLine& line, CliReport& report);
};
