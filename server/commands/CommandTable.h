#pragma once

#include "server/commands/Handler.h"

#include <initializer_list>
#include <vector>

namespace server {

// The commands that a server answers: the handlers of every domain.
class CommandTable {
public:
    // The handlers outlive the table. If several take a request, the first one answers.
    CommandTable(std::initializer_list<std::span<const Handler>> domains) : domains_(domains) {}

    // The handler of a request; null when there is none for the opcode. Throws BadRequest when there are handlers for
    // the opcode, but none of them takes the form of the request.
    [[nodiscard]] const Handler* find(std::uint16_t opcode, Fields fields) const;

private:
    std::vector<std::span<const Handler>> domains_;
};

} // namespace server
