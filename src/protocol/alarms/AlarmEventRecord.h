#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Something that a printer can report.
struct AlarmEventRecord {
    std::string id;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &AlarmEventRecord::id), field("name", &AlarmEventRecord::name));

    bool operator==(const AlarmEventRecord&) const = default;
};

} // namespace protocol
