#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A rule about the short ids with which users fetch their print jobs: how long one is valid, and how long it is not
// given to another job.
struct ShortIdRecord {
    wire::Uuid id = {}; // made by the console
    wire::WideString name;
    wire::WideString comment;
    std::optional<wire::Uuid> messageId;          // absent for the default message of the server
    std::optional<std::uint32_t> validMinutes;    // from the last print
    std::optional<std::uint32_t> reservedMinutes; // after the valid time
    std::optional<std::int64_t> reservedUntil;    // seconds since midnight; the wire carries the low 32 bits

    static constexpr auto fields = wireOrder(
        field("id", &ShortIdRecord::id), field("name", &ShortIdRecord::name), field("comment", &ShortIdRecord::comment),
        field("messageId", &ShortIdRecord::messageId), field("validMinutes", &ShortIdRecord::validMinutes),
        field("reservedMinutes", &ShortIdRecord::reservedMinutes),
        field("reservedUntil", &ShortIdRecord::reservedUntil));

    bool operator==(const ShortIdRecord&) const = default;
};

// Asks for all short ids. It has no fields.
struct ListShortIdsRequest {
    static constexpr std::uint16_t opcode = 81;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListShortIdsRequest&) const = default;
};

// Adds a short id.
struct AddShortIdRequest {
    static constexpr std::uint16_t opcode = 83;

    ShortIdRecord shortId;

    static constexpr auto fields = wireOrder(field("shortId", &AddShortIdRequest::shortId));

    bool operator==(const AddShortIdRequest&) const = default;
};

// Changes a short id.
struct UpdateShortIdRequest {
    static constexpr std::uint16_t opcode = 84;

    ShortIdRecord shortId;

    static constexpr auto fields = wireOrder(field("shortId", &UpdateShortIdRequest::shortId));

    bool operator==(const UpdateShortIdRequest&) const = default;
};

// Deletes a short id.
struct DeleteShortIdRequest {
    static constexpr std::uint16_t opcode = 82;

    wire::Uuid id = {};

    static constexpr auto fields = wireOrder(field("id", &DeleteShortIdRequest::id));

    bool operator==(const DeleteShortIdRequest&) const = default;
};

} // namespace protocol
