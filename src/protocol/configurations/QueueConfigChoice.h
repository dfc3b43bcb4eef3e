#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A configuration that a queue may use with a driver map.
struct QueueConfigChoice {
    std::string id;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &QueueConfigChoice::id), field("name", &QueueConfigChoice::name));

    bool operator==(const QueueConfigChoice&) const = default;
};

} // namespace protocol
