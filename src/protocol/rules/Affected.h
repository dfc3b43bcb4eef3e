#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

namespace protocol::affectedType {

constexpr std::uint8_t user = 1;
constexpr std::uint8_t group = 2;

} // namespace protocol::affectedType

// Whether a rule applies to those that a record names, or to all others.
namespace protocol::affectedSense {

constexpr std::uint8_t isNot = 0;
constexpr std::uint8_t is = 1;

} // namespace protocol::affectedSense

namespace protocol {

// A user or a group affected by rule entries, or exempt from them. This is the order of a reply; a request has a
// different one, see WriteAffectedRequest.
struct AffectedRecord {
    std::string id; // uuid text, made by the console
    std::uint8_t type = affectedType::user;
    std::uint8_t equals = affectedSense::is;
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

// Adds or changes an affected user or group. The fields of the record are in a different order from that of a reply,
// which has to stay.
struct WriteAffectedRequest {
    static constexpr std::uint16_t opcode = 60;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {ruleWriteAction::add, ruleWriteAction::update};

    std::uint8_t action = ruleWriteAction::add;
    std::uint8_t equals = affectedSense::is;
    std::string id;
    std::uint8_t type = affectedType::user;
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
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::remove};

    std::uint8_t action = ruleWriteAction::remove;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeleteAffectedRequest::action), field("id", &DeleteAffectedRequest::id));

    bool operator==(const DeleteAffectedRequest&) const = default;
};

} // namespace protocol
