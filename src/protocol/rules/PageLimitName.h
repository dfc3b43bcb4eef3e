#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A page limit in the list of all: what it takes to choose one.
struct PageLimitName {
    std::string id;
    wire::WideString name;

    static constexpr auto fields = wireOrder(field("id", &PageLimitName::id), field("name", &PageLimitName::name));

    bool operator==(const PageLimitName&) const = default;
};

} // namespace protocol
