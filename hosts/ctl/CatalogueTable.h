#pragma once

#include "hosts/ctl/Options.h"
#include "protocol/Catalogue.h"

#include <ostream>
#include <string_view>

namespace ctl {

// All commands of the protocol, in the requested format. JSON contains the fields of each request and reply:
// "requestFields", or "forms" for a command that has several; "replyFields", and "otherRecord" for what a list contains
// instead when its request begins with that byte. Null means no fields. A list or an optional says what it is "of".
void writeCatalogue(std::ostream& out, Format format);

// A command by its number or, without regard to case, its name. Throws Failure (usage) for any other.
const protocol::Command& findCommand(std::string_view opcodeOrName);

} // namespace ctl
