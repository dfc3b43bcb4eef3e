#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/Session.h"

#include <istream>
#include <ostream>
#include <vector>

namespace ctl {

// A command of a script, and its line number.
struct ScriptLine {
    std::size_t number = 0; // from 1
    Options options;
};

// The commands of a script, one per line, quoted as in a shell; empty lines and comments are skipped. The format of the
// script applies to lines without one. Throws Failure (usage) with the line's number, so that nothing of a script with
// a mistake is carried out.
std::vector<ScriptLine> readScript(std::istream& text, Format format);

// Carries out the script that the options name ("-" is standard input), each line as a separate command, with a single
// login. Throws Failure at the first line that failed; or, when told to keep going, reports each failed line on
// `errors` and throws a summary at the end.
void runScript(const Options& options, Session& session, std::ostream& out, std::ostream& errors);

} // namespace ctl
