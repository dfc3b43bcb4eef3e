#pragma once

#include "hosts/ctl/Options.h"
#include "shell/Table.h"

#include <cstddef>
#include <ostream>

namespace ctl {

// As CSV, or as columns side by side. If standard output is a terminal, those are cut to fit into its width.
void writeTable(std::ostream& out, const shell::Table& table, Format format);

// The width in cells of the terminal that is open under this number; unlimited for anything else.
std::size_t terminalWidth(int descriptor);

} // namespace ctl
