#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/Session.h"

#include <istream>
#include <ostream>
#include <vector>

namespace ctl {

// A command of a script, and where it stands.
struct ScriptLine {
    std::size_t number = 0; // from 1
    Options options;
};

// The commands of a script, one a line, quoted as in a shell; empty lines and comments are passed over. The format is
// that of the script where a line does not tell its own. Throws Failure (usage) with the line's number, so that nothing
// of a script with a mistake is carried out.
std::vector<ScriptLine> readScript(std::istream& text, Format format);

// Carries out the script that the options name ("-" is standard input), each line as a command of its own over the one
// login. Throws Failure at the first line that could not be done; or goes on, tells each such line on `errors`, and
// throws one that sums up.
void runScript(const Options& options, Session& session, std::ostream& out, std::ostream& errors);

} // namespace ctl
