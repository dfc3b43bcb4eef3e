#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A named list of actions that printers point at.
struct AlarmProgramRecord {
    std::string id; // made by the server
    wire::WideString name;
    wire::WideString comment;
    wire::WideString createdBy;
    wire::WideString creationDate; // a text made by the server, shown as it is

    static constexpr auto fields =
        wireOrder(field("id", &AlarmProgramRecord::id), field("name", &AlarmProgramRecord::name),
                  field("comment", &AlarmProgramRecord::comment), field("createdBy", &AlarmProgramRecord::createdBy),
                  field("creationDate", &AlarmProgramRecord::creationDate));

    bool operator==(const AlarmProgramRecord&) const = default;
};

} // namespace protocol
