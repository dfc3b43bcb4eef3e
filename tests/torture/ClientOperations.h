#pragma once

#include "client/CQVXAdminClass.h"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace torture {

// A request of a console, and how it reads the answer.
struct ClientOperation {
    std::string name;
    // The answer as lines of text; empty when the operation reported a failure. May throw.
    std::optional<std::string> (*run)(client::CQVXAdminClass& client);
    bool mayBreakOff = false; // a list that the server cuts short contains what arrived before
};

inline std::ostream& operator<<(std::ostream& stream, const ClientOperation& operation) {
    return stream << operation.name;
}

[[nodiscard]] const std::vector<ClientOperation>& clientOperations();

} // namespace torture
