#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/Session.h"

namespace ctl {

// Chooses a menu entry, by its id or its text, with the steps that its forms and questions need.
void runEntry(const Options& options, Session& session);

// The rename of a node, and the cut and paste of one below another, where the nodes offer them. Both look afterwards
// whether it came true, since a server that refuses does not say so. Throw Failure when it did not.
void renameNode(const Options& options, Session& session);
void moveNode(const Options& options, Session& session);

} // namespace ctl
