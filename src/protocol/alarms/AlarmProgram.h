#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol::alarmProgramKind {

constexpr std::uint8_t alarm = 0;
constexpr std::uint8_t counter = 2; // reads a printer's counters

} // namespace protocol::alarmProgramKind

namespace protocol {

// A named list of actions that printers refer to.
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

// Lists the programs of a kind, or only the one with the id in the filter.
struct ListAlarmProgramsRequest {
    static constexpr std::uint16_t opcode = 27;

    std::uint8_t kind = 0; // see alarmProgramKind
    std::string filter;

    static constexpr auto fields =
        wireOrder(field("kind", &ListAlarmProgramsRequest::kind), field("filter", &ListAlarmProgramsRequest::filter));

    bool operator==(const ListAlarmProgramsRequest&) const = default;
};

// Adds (without an id), changes, or (with an id and no texts at all) deletes a program.
struct WriteAlarmProgramRequest {
    static constexpr std::uint16_t opcode = 28;

    std::string id;
    wire::WideString name;
    wire::WideString comment;
    wire::WideString createdBy;

    static constexpr auto fields = wireOrder(
        field("id", &WriteAlarmProgramRequest::id), field("name", &WriteAlarmProgramRequest::name),
        field("comment", &WriteAlarmProgramRequest::comment), field("createdBy", &WriteAlarmProgramRequest::createdBy));

    bool operator==(const WriteAlarmProgramRequest&) const = default;
};

// The id of the program that was written.
struct WriteAlarmProgramReply {
    std::string id; // empty when it was refused

    static constexpr auto fields = wireOrder(field("id", &WriteAlarmProgramReply::id));

    bool operator==(const WriteAlarmProgramReply&) const = default;
};

} // namespace protocol
