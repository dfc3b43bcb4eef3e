#pragma once

#include <cstdlib>
#include <exception>

namespace fuzz {

// Ends the program when something that must hold does not.
inline void expect(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// Runs an action that bad bytes may end with a standard exception or with a plain string; any other exception ends the
// program.
template <class Action>
void tolerate(Action&& action) {
    try {
        action();
    } catch (const std::exception&) {
        return;
    } catch (const char*) {
        return;
    }
}

} // namespace fuzz
