#pragma once

#include "console/Result.h"

namespace console {

class IConsole;

// When the selection does not offer Paste, enables the standard verbs, Paste among them. Returns the result of the last
// call to the console.
Result offerStandardVerbs(IConsole& console);

} // namespace console
