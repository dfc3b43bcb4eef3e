#pragma once

#include "hosts/ctl/Options.h"
#include "protocol/Catalogue.h"

#include <ostream>
#include <string_view>

namespace ctl {

// All commands of the protocol, in the format asked for.
void writeCatalogue(std::ostream& out, Format format);

// A command by its number or, without regard to case, its name. Throws Failure (usage) for any other.
const protocol::Command& findCommand(std::string_view opcodeOrName);

} // namespace ctl
