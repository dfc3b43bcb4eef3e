#pragma once

#include "tests/support/Bytes.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace torture {

// A command that changes many rows at once.
struct WideCommand {
    std::string name;
    // Looks up what it needs on a server with the small sample estate at the port, makes what is missing, and returns
    // the request.
    support::Bytes (*request)(std::uint16_t port);
};

inline std::ostream& operator<<(std::ostream& stream, const WideCommand& command) {
    return stream << command.name;
}

[[nodiscard]] const std::vector<WideCommand>& wideCommands();

} // namespace torture
