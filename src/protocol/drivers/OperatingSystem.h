#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// An operating system that drivers can be deployed for. A console keeps the three numbers, but does not use them.
struct OperatingSystemRecord {
    std::string osId;
    wire::WideString name;
    std::int32_t value1 = 0;
    std::int32_t value2 = 0;
    std::uint16_t value3 = 0;

    static constexpr auto fields =
        wireOrder(field("osId", &OperatingSystemRecord::osId), field("name", &OperatingSystemRecord::name),
                  field("value1", &OperatingSystemRecord::value1), field("value2", &OperatingSystemRecord::value2),
                  field("value3", &OperatingSystemRecord::value3));

    bool operator==(const OperatingSystemRecord&) const = default;
};

// Asks for all operating systems; it has no fields.
struct ListOperatingSystemsRequest {
    static constexpr std::uint16_t opcode = 11;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListOperatingSystemsRequest&) const = default;
};

} // namespace protocol
