#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// What a person who prints gets to see when a page limit or a short id takes effect.
struct UserMessageRecord {
    wire::Uuid id = {}; // made by the console
    wire::WideString name;
    wire::WideString subtitle; // never travels, and so is always empty
    wire::WideString caption;
    wire::WideString text;  // or the address of a web page
    std::uint32_t icon = 0; // 0 OK, 1 warning, 2 stop, 3 info
    std::uint32_t type = 1; // 1 message box, 2 balloon, 3 web page
    bool builtIn = false;   // told by the server: may be edited but not deleted

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
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    UserMessageRecord message;

    static constexpr auto fields = wireOrder(field("action", &WriteUserMessageRequest::action),
                                             field("message", &WriteUserMessageRequest::message));

    bool operator==(const WriteUserMessageRequest&) const = default;
};

// Deletes a user message.
struct DeleteUserMessageRequest {
    static constexpr std::uint16_t opcode = 68;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    wire::Uuid id = {};

    static constexpr auto fields =
        wireOrder(field("action", &DeleteUserMessageRequest::action), field("id", &DeleteUserMessageRequest::id));

    bool operator==(const DeleteUserMessageRequest&) const = default;
};

} // namespace protocol
