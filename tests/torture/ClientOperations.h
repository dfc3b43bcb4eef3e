#pragma once

#include "client/CQVXAdminClass.h"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace torture {

// What a console asks of the server, and how it reads the answer.
struct ClientOperation {
    std::string name;
    // What came back, as lines of text; nothing when the operation has told that it failed. May throw.
    std::optional<std::string> (*run)(client::CQVXAdminClass& client);
    bool mayBreakOff = false; // a list that the server breaks off holds what came before
};

inline std::ostream& operator<<(std::ostream& stream, const ClientOperation& operation) {
    return stream << operation.name;
}

[[nodiscard]] const std::vector<ClientOperation>& clientOperations();

} // namespace torture
