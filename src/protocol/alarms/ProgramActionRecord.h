#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// One action of a program, in the words of the server. The action comes before the event, although people read them the
// other way round.
struct ProgramActionRecord {
    std::string id;
    std::string actionName;
    std::string eventName;
    wire::WideString recipient;

    static constexpr auto fields = wireOrder(
        field("id", &ProgramActionRecord::id), field("actionName", &ProgramActionRecord::actionName),
        field("eventName", &ProgramActionRecord::eventName), field("recipient", &ProgramActionRecord::recipient));

    bool operator==(const ProgramActionRecord&) const = default;
};

} // namespace protocol
