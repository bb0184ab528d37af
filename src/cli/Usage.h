#pragma once

#include <QString>

// The text brevik-cli --help prints.
QString cliUsage();
