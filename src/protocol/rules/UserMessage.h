#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

namespace protocol::messageIcon {

constexpr std::uint32_t ok = 0;
constexpr std::uint32_t warning = 1;
constexpr std::uint32_t stop = 2;
constexpr std::uint32_t info = 3;
constexpr std::uint32_t last = info;

} // namespace protocol::messageIcon

// How a user message is shown.
namespace protocol::messageType {

constexpr std::uint32_t box = 1;
constexpr std::uint32_t balloon = 2;
constexpr std::uint32_t webPage = 3;
constexpr std::uint32_t first = box;
constexpr std::uint32_t last = webPage;

} // namespace protocol::messageType

namespace protocol {

// What the printing user sees when a page limit or a short id takes effect.
struct UserMessageRecord {
    wire::Uuid id = {}; // made by the console
    wire::WideString name;
    wire::WideString subtitle; // never sent, and so always empty
    wire::WideString caption;
    wire::WideString text; // or the address of a web page
    std::uint32_t icon = messageIcon::ok;
    std::uint32_t type = messageType::box;
    bool builtIn = false; // set by the server: such a message may be edited but not deleted

    static constexpr auto fields =
        wireOrder(field("id", &UserMessageRecord::id), field("name", &UserMessageRecord::name),
                  field("caption", &UserMessageRecord::caption), field("text", &UserMessageRecord::text),
                  field("icon", &UserMessageRecord::icon), field("type", &UserMessageRecord::type),
                  field("builtIn", &UserMessageRecord::builtIn));

    bool operator==(const UserMessageRecord&) const = default;
};

// Asks for all user messages.
struct ListUserMessagesRequest {
    static constexpr std::uint16_t opcode = 67;

    std::uint8_t selection = 1; // no other one exists
    std::string filter;         // empty for all

    static constexpr auto fields = wireOrder(field("selection", &ListUserMessagesRequest::selection),
                                             field("filter", &ListUserMessagesRequest::filter));

    bool operator==(const ListUserMessagesRequest&) const = default;
};

// Adds or changes a user message.
struct WriteUserMessageRequest {
    static constexpr std::uint16_t opcode = 68;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {ruleWriteAction::add, ruleWriteAction::update};

    std::uint8_t action = ruleWriteAction::add;
    UserMessageRecord message;

    static constexpr auto fields = wireOrder(field("action", &WriteUserMessageRequest::action),
                                             field("message", &WriteUserMessageRequest::message));

    bool operator==(const WriteUserMessageRequest&) const = default;
};

// Deletes a user message.
struct DeleteUserMessageRequest {
    static constexpr std::uint16_t opcode = 68;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::remove};

    std::uint8_t action = ruleWriteAction::remove;
    wire::Uuid id = {};

    static constexpr auto fields =
        wireOrder(field("action", &DeleteUserMessageRequest::action), field("id", &DeleteUserMessageRequest::id));

    bool operator==(const DeleteUserMessageRequest&) const = default;
};

} // namespace protocol
