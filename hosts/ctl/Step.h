#pragma once

#include "platform/UserInterface.h"
#include "wire/Text.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ctl {

// One action on a form or a message box.
struct Step {
    enum class Kind : std::uint8_t { set, select, press, answer };

    Kind kind = Kind::press;
    wire::WideString label{}; // of the control
    wire::WideString value{}; // to set or select
    platform::Answer answer = platform::Answer::ok;
    std::string written; // as on the command line, for messages
};

// From the arguments of --set, --select, --press and --answer. All throw Failure (usage).
Step parseStep(Step::Kind kind, std::string_view argument);

} // namespace ctl
