#pragma once

#include "console/Result.h"

#include <cstdint>

namespace console {

// The standard verbs of the console; the numbers are the platform's MMC_VERB_ values.
enum class Verb : std::uint32_t {
    open = 0x8000,
    copy = 0x8001,
    paste = 0x8002,
    deleteItem = 0x8003,
    properties = 0x8004,
    rename = 0x8005,
    refresh = 0x8006,
    print = 0x8007,
    cut = 0x8008
};

// The one state that this system uses; the platform's ENABLED.
enum class VerbState : std::uint8_t { enabled = 1 };

// Which standard verbs the current selection offers.
class IConsoleVerb {
public:
    virtual ~IConsoleVerb() = default;

    virtual Result SetVerbState(Verb verb, VerbState state, bool flag) = 0;
    virtual Result GetVerbState(Verb verb, VerbState state, bool& flag) = 0;
};

} // namespace console
