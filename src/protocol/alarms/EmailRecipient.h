#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A contact that alarms can send mail to. The order differs from that of the write request: here the address comes
// before the name.
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

// Asks for one recipient, or with an empty id for all.
struct ListEmailRecipientsRequest {
    static constexpr std::uint16_t opcode = 23;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &ListEmailRecipientsRequest::id));

    bool operator==(const ListEmailRecipientsRequest&) const = default;
};

// Adds (without an id), changes, or (with an id and neither name nor address) deletes a recipient. The order differs
// from that of the record: here the name comes before the address.
struct WriteEmailRecipientRequest {
    static constexpr std::uint16_t opcode = 24;

    std::string id;
    wire::WideString name;
    wire::WideString email;
    std::uint8_t active = 0;

    static constexpr auto fields = wireOrder(
        field("id", &WriteEmailRecipientRequest::id), field("name", &WriteEmailRecipientRequest::name),
        field("email", &WriteEmailRecipientRequest::email), field("active", &WriteEmailRecipientRequest::active));

    bool operator==(const WriteEmailRecipientRequest&) const = default;
};

// Switches a recipient on or off.
struct SetRecipientActiveRequest {
    static constexpr std::uint16_t opcode = 25;

    std::string id;
    std::uint8_t active = 0;

    static constexpr auto fields =
        wireOrder(field("id", &SetRecipientActiveRequest::id), field("active", &SetRecipientActiveRequest::active));

    bool operator==(const SetRecipientActiveRequest&) const = default;
};

} // namespace protocol
