#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A contact that alarms can send mail to. It is written in another order than it is read in: the address comes before
// the name here.
struct EmailRecipientRecord {
    std::string id; // made by the server
    wire::WideString email;
    wire::WideString name;
    bool active = false; // whether alarms may go to this contact

    static constexpr auto fields =
        wireOrder(field("id", &EmailRecipientRecord::id), field("email", &EmailRecipientRecord::email),
                  field("name", &EmailRecipientRecord::name), field("active", &EmailRecipientRecord::active));

    bool operator==(const EmailRecipientRecord&) const = default;
};

} // namespace protocol
