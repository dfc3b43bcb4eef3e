#include "server/commands/CommandTable.h"

namespace server {

const Handler* CommandTable::find(std::uint16_t opcode, Fields fields) const {
    bool known = false;
    for (const auto& handlers : domains_) {
        for (const auto& one : handlers) {
            if (one.opcode != opcode) {
                continue;
            }
            if (one.takes == nullptr || one.takes(fields)) {
                return &one;
            }
            known = true;
        }
    }
    if (known) {
        throw BadRequest("command " + std::to_string(opcode) + " in an unknown form");
    }
    return nullptr;
}

} // namespace server
