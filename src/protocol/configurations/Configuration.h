#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Settings of a driver that a user has uploaded for a printer model.
struct ConfigurationRecord {
    std::string configId;
    wire::WideString uploadedBy;
    wire::WideString date;       // a wire date
    wire::WideString comment;    // the name under which it is shown
    wire::WideString configText; // the settings themselves; not shown
    std::uint16_t useCount = 0;  // how many queues use it

    static constexpr auto fields = wireOrder(
        field("configId", &ConfigurationRecord::configId), field("uploadedBy", &ConfigurationRecord::uploadedBy),
        field("date", &ConfigurationRecord::date), field("comment", &ConfigurationRecord::comment),
        field("configText", &ConfigurationRecord::configText), field("useCount", &ConfigurationRecord::useCount));

    bool operator==(const ConfigurationRecord&) const = default;
};

// A queue that uses a configuration.
struct ConfigQueueRecord {
    std::uint32_t queueNumber = 0; // the same for as long as the queue exists
    std::string queueId;
    wire::WideString queueName;
    wire::WideString queueLocation;

    static constexpr auto fields = wireOrder(
        field("queueNumber", &ConfigQueueRecord::queueNumber), field("queueId", &ConfigQueueRecord::queueId),
        field("queueName", &ConfigQueueRecord::queueName), field("queueLocation", &ConfigQueueRecord::queueLocation));

    bool operator==(const ConfigQueueRecord&) const = default;
};

// Asks for the configurations of a printer model.
struct ListConfigurationsRequest {
    static constexpr std::uint16_t opcode = 50;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &ListConfigurationsRequest::modelId));

    bool operator==(const ListConfigurationsRequest&) const = default;
};

// Gives a configuration another comment.
struct SetConfigurationCommentRequest {
    static constexpr std::uint16_t opcode = 51;

    std::string configId;
    wire::WideString comment;

    static constexpr auto fields = wireOrder(field("configId", &SetConfigurationCommentRequest::configId),
                                             field("comment", &SetConfigurationCommentRequest::comment));

    bool operator==(const SetConfigurationCommentRequest&) const = default;
};

// Deletes a configuration.
struct DeleteConfigurationRequest {
    static constexpr std::uint16_t opcode = 52;

    std::uint8_t force = 0; // 1: even while queues use it
    std::string configId;

    static constexpr auto fields = wireOrder(field("force", &DeleteConfigurationRequest::force),
                                             field("configId", &DeleteConfigurationRequest::configId));

    bool operator==(const DeleteConfigurationRequest&) const = default;
};

// Asks for the queues that use a configuration.
struct ListConfigurationQueuesRequest {
    static constexpr std::uint16_t opcode = 53;

    std::string configId;

    static constexpr auto fields = wireOrder(field("configId", &ListConfigurationQueuesRequest::configId));

    bool operator==(const ListConfigurationQueuesRequest&) const = default;
};

// Removes a configuration from a queue.
struct RemoveConfigurationFromQueueRequest {
    static constexpr std::uint16_t opcode = 54;

    std::string configId;
    std::string queueId;

    static constexpr auto fields = wireOrder(field("configId", &RemoveConfigurationFromQueueRequest::configId),
                                             field("queueId", &RemoveConfigurationFromQueueRequest::queueId));

    bool operator==(const RemoveConfigurationFromQueueRequest&) const = default;
};

// Gives all queues of a model a configuration with each deployment of a driver.
struct ApplyConfigurationForDriverRequest {
    static constexpr std::uint16_t opcode = 79;

    std::string configId;
    std::string modelId;
    std::string driverId;

    static constexpr auto fields = wireOrder(field("configId", &ApplyConfigurationForDriverRequest::configId),
                                             field("modelId", &ApplyConfigurationForDriverRequest::modelId),
                                             field("driverId", &ApplyConfigurationForDriverRequest::driverId));

    bool operator==(const ApplyConfigurationForDriverRequest&) const = default;
};

} // namespace protocol
