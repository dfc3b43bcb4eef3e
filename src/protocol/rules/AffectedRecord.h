#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A user or a group whom rule entries affect, or all but whom. This is the order of a reply; a request has another one,
// see WriteAffectedRequest.
struct AffectedRecord {
    std::string id;          // uuid text, made by the console
    std::uint8_t type = 1;   // 1 user, 2 group
    std::uint8_t equals = 1; // 1 is, 0 is not
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &AffectedRecord::id), field("type", &AffectedRecord::type),
                  field("equals", &AffectedRecord::equals), field("name", &AffectedRecord::name));

    bool operator==(const AffectedRecord&) const = default;
};

} // namespace protocol
