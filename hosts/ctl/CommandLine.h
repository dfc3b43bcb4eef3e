#pragma once

#include "hosts/ctl/Options.h"

#include <string>
#include <variant>

namespace ctl {

// A text requested with --help or --version.
struct Information {
    std::string text;
};

// Reads the command line; global options may be before or after the command. The format applies when none is given.
// Throws Failure (usage) with one line.
std::variant<Options, Information> parseCommandLine(int count, const char* const* arguments,
                                                    Format format = Format::table);

} // namespace ctl
