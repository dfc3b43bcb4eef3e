#pragma once

#include "hosts/ctl/Options.h"
#include "shell/MenuItem.h"

#include <ostream>
#include <span>

namespace ctl {

// JSON is a list of {"text", "status", "id"} and {"separator": true}; the other formats leave separators out.
void writeMenu(std::ostream& out, std::span<const shell::MenuItem> menu, Format format);

} // namespace ctl
