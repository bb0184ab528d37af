#include "cli/Usage.h"

QString cliUsage() {
    return QStringLiteral(
        "Usage: brevik-cli VERB [OPTION]... FILE...\n"
        "Reads and writes Windows icons, cursors and icon libraries as the Brevik editor does.\n"
        "\n"
        "  info [--json] FILE...             one line per image: file, icon/index, size,\n"
        "                                    depth, kind, hot spot\n"
        "  convert [--size 16|32|48] [--index N] [--hotspot X,Y] IN OUT\n"
        "                                    PNG, BMP, ICO or CUR in; .ico, .cur or .bmp out\n"
        "  extract [--size 32] [-o DIR] FILE...\n"
        "                                    every icon as an .ico, byte for byte as stored\n"
        "  build OUT.ico ICON.ico...         a multi-image icon by the builder's rules\n"
        "  library OUT.icl ICON.ico...       a 16-bit icon library, one icon per file\n"
        "\n"
        "  -h, --help                        show this help and exit\n"
        "  --version                         show the version and exit\n"
        "\n"
        "Exit status: 0 on success, 1 when a file could not be read or written (the other\n"
        "files are still processed), 2 on bad usage.\n");
}
