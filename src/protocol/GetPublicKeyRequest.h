#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the key that seals the credentials of a login; it has no fields.
struct GetPublicKeyRequest {
    static constexpr std::uint16_t opcode = 78;

    static constexpr auto fields = wireOrder();

    bool operator==(const GetPublicKeyRequest&) const = default;
};

} // namespace protocol
