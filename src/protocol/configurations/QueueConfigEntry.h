#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// What a queue uses with one deployment of its model, which is called a driver map here.
struct QueueConfigEntry {
    std::string configId; // empty for no configuration
    wire::WideString driverName;
    wire::WideString locale;
    std::string driverMapId;
    wire::WideString packageName; // of the configuration
    wire::WideString comment;

    static constexpr auto fields =
        wireOrder(field("configId", &QueueConfigEntry::configId), field("driverName", &QueueConfigEntry::driverName),
                  field("locale", &QueueConfigEntry::locale), field("driverMapId", &QueueConfigEntry::driverMapId),
                  field("packageName", &QueueConfigEntry::packageName), field("comment", &QueueConfigEntry::comment));

    bool operator==(const QueueConfigEntry&) const = default;
};

} // namespace protocol
