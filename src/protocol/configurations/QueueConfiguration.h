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

// A configuration that a queue may use with a driver map.
struct QueueConfigChoice {
    std::string id;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &QueueConfigChoice::id), field("name", &QueueConfigChoice::name));

    bool operator==(const QueueConfigChoice&) const = default;
};

// Asks what a queue uses with each driver map, or with one.
struct ListQueueConfigurationsRequest {
    static constexpr std::uint16_t opcode = 17;

    std::string queueId;
    std::string driverMapId; // empty for all

    static constexpr auto fields = wireOrder(field("queueId", &ListQueueConfigurationsRequest::queueId),
                                             field("driverMapId", &ListQueueConfigurationsRequest::driverMapId));

    bool operator==(const ListQueueConfigurationsRequest&) const = default;
};

// Asks which configurations a queue may use with a driver map.
struct ListConfigurationChoicesRequest {
    static constexpr std::uint16_t opcode = 18;

    std::string driverMapId;

    static constexpr auto fields = wireOrder(field("driverMapId", &ListConfigurationChoicesRequest::driverMapId));

    bool operator==(const ListConfigurationChoicesRequest&) const = default;
};

// Gives a queue a configuration with a driver map, or removes it.
struct ApplyQueueConfigurationRequest {
    static constexpr std::uint16_t opcode = 19;

    std::string queueId;
    std::string driverMapId;
    std::string configId; // empty to remove it

    static constexpr auto fields = wireOrder(field("queueId", &ApplyQueueConfigurationRequest::queueId),
                                             field("driverMapId", &ApplyQueueConfigurationRequest::driverMapId),
                                             field("configId", &ApplyQueueConfigurationRequest::configId));

    bool operator==(const ApplyQueueConfigurationRequest&) const = default;
};

} // namespace protocol
