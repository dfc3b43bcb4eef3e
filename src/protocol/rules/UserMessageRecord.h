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

} // namespace protocol
