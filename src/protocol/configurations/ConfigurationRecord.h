#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Settings of a driver that a user has uploaded for a printer model.
struct ConfigurationRecord {
    std::string configId;
    wire::WideString uploadedBy;
    wire::WideString date;       // made by the server, shown in the form of the place
    wire::WideString comment;    // the name under which it shows
    wire::WideString configText; // what it sets, carried and not shown
    std::uint16_t useCount = 0;  // how many queues use it

    static constexpr auto fields = wireOrder(
        field("configId", &ConfigurationRecord::configId), field("uploadedBy", &ConfigurationRecord::uploadedBy),
        field("date", &ConfigurationRecord::date), field("comment", &ConfigurationRecord::comment),
        field("configText", &ConfigurationRecord::configText), field("useCount", &ConfigurationRecord::useCount));

    bool operator==(const ConfigurationRecord&) const = default;
};

} // namespace protocol
