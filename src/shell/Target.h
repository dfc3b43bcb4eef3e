#pragma once

#include "console/ItemFields.h"

namespace shell {

// What a command is about: a scope item, or a row of the list of the selected one.
struct Target {
    console::ScopeId scope = 0;
    console::ResultId row = 0; // 0: the scope item itself

    friend bool operator==(const Target&, const Target&) = default;
};

} // namespace shell
