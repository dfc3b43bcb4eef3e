#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// What comes before the key, which follows as a raw block; consoles use neither value.
struct GetPublicKeyReply {
    std::string text;
    std::uint32_t number = 0;

    static constexpr auto fields =
        wireOrder(field("text", &GetPublicKeyReply::text), field("number", &GetPublicKeyReply::number));

    bool operator==(const GetPublicKeyReply&) const = default;
};

} // namespace protocol
