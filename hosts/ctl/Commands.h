#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/Session.h"

#include <ostream>

namespace ctl {

// Carries out any command except a script; data goes to `out`. Throws Failure when it could not be done.
void carryOut(const Options& options, Session& session, std::ostream& out);

} // namespace ctl
