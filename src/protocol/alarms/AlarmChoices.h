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

// Lists everything that a printer can report; it has no fields.
struct ListAlarmEventsRequest {
    static constexpr std::uint16_t opcode = 29;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListAlarmEventsRequest&) const = default;
};

// Something that an event can lead to.
struct AlarmActionRecord {
    std::uint16_t code = 0;
    wire::WideString name;
    bool flag = false; // needs a destination

    static constexpr auto fields =
        wireOrder(field("code", &AlarmActionRecord::code), field("name", &AlarmActionRecord::name),
                  field("flag", &AlarmActionRecord::flag));

    bool operator==(const AlarmActionRecord&) const = default;
};

// Lists everything that an event can lead to; it has no fields.
struct ListAlarmActionsRequest {
    static constexpr std::uint16_t opcode = 30;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListAlarmActionsRequest&) const = default;
};

// The destination of an action, such as a mail recipient.
struct AlarmDestinationRecord {
    std::string id;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &AlarmDestinationRecord::id), field("name", &AlarmDestinationRecord::name));

    bool operator==(const AlarmDestinationRecord&) const = default;
};

// Lists the destinations of an action.
struct ListAlarmDestinationsRequest {
    static constexpr std::uint16_t opcode = 31;

    std::uint16_t actionCode = 0;

    static constexpr auto fields = wireOrder(field("actionCode", &ListAlarmDestinationsRequest::actionCode));

    bool operator==(const ListAlarmDestinationsRequest&) const = default;
};

} // namespace protocol
