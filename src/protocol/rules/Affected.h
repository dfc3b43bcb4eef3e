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

// Asks for all affected users and groups.
struct ListAffectedRequest {
    static constexpr std::uint16_t opcode = 59;

    std::string filter; // empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListAffectedRequest::filter));

    bool operator==(const ListAffectedRequest&) const = default;
};

// Adds or changes an affected user or group. The fields of the record come in another order than in a reply, which has
// to stay.
struct WriteAffectedRequest {
    static constexpr std::uint16_t opcode = 60;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    std::uint8_t equals = 1;
    std::string id;
    std::uint8_t type = 1;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("action", &WriteAffectedRequest::action), field("equals", &WriteAffectedRequest::equals),
                  field("id", &WriteAffectedRequest::id), field("type", &WriteAffectedRequest::type),
                  field("name", &WriteAffectedRequest::name));

    bool operator==(const WriteAffectedRequest&) const = default;
};

// Deletes an affected user or group.
struct DeleteAffectedRequest {
    static constexpr std::uint16_t opcode = 60;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeleteAffectedRequest::action), field("id", &DeleteAffectedRequest::id));

    bool operator==(const DeleteAffectedRequest&) const = default;
};

} // namespace protocol
