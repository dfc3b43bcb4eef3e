#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/Session.h"

#include <ostream>

namespace ctl {

// Opens the dialog of a menu entry, does the steps, prints the dialog that is then open, and cancels. Nothing is
// written.
void printForm(const Options& options, Session& session, std::ostream& out);

// Chooses a menu entry, by its id or its text, and applies the steps to its forms and questions.
void runEntry(const Options& options, Session& session);

// Renames a node, or cuts and pastes it below another, if the nodes offer that. Both check the result afterwards,
// because a server does not report a refusal. Throw Failure when the change was not made.
void renameNode(const Options& options, Session& session);
void moveNode(const Options& options, Session& session);

} // namespace ctl
