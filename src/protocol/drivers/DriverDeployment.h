#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol::installMethod {

// How much a client's user sees of the installation of a driver.
inline constexpr std::uint8_t quiet = 0;
inline constexpr std::uint8_t superQuiet = 1;
inline constexpr std::uint8_t verbose = 2;

} // namespace protocol::installMethod

namespace protocol {

// The driver that a model gets on one operating system in one locale, and how it is installed.
struct DriverDeploymentRecord {
    wire::WideString version; // of the driver
    wire::WideString comment;
    std::string deploymentId;
    std::string osId;
    wire::WideString osName;
    wire::WideString locale;        // free text, as an administrator typed it
    std::uint8_t use = 0;           // 0 or '0' no, 1 or '1' yes
    std::uint8_t install = 0;       // the same
    std::uint8_t installMethod = 0; // one of installMethod

    static constexpr auto fields = wireOrder(
        field("version", &DriverDeploymentRecord::version), field("comment", &DriverDeploymentRecord::comment),
        field("deploymentId", &DriverDeploymentRecord::deploymentId), field("osId", &DriverDeploymentRecord::osId),
        field("osName", &DriverDeploymentRecord::osName), field("locale", &DriverDeploymentRecord::locale),
        field("use", &DriverDeploymentRecord::use), field("install", &DriverDeploymentRecord::install),
        field("installMethod", &DriverDeploymentRecord::installMethod));

    bool operator==(const DriverDeploymentRecord&) const = default;
};

// Asks for the deployments of a model.
struct ListDriverDeploymentsRequest {
    static constexpr std::uint16_t opcode = 14;

    std::string modelId;
    std::string driverId; // empty: with any driver

    static constexpr auto fields = wireOrder(field("modelId", &ListDriverDeploymentsRequest::modelId),
                                             field("driverId", &ListDriverDeploymentsRequest::driverId));

    bool operator==(const ListDriverDeploymentsRequest&) const = default;
};

// Deploys a driver for a model, an operating system and a locale, replacing what was deployed there.
struct AddDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 15;

    std::string driverId;
    std::string modelId;
    wire::WideString comment;
    wire::WideString locale;
    std::string osId;
    std::uint8_t use = 1;
    std::uint8_t install = 0;
    std::uint8_t installMethod = 0; // one of installMethod
    std::uint8_t keepConfig = 0;    // 1: the configurations of queues move to the new deployment, 0: they are removed

    static constexpr auto fields = wireOrder(
        field("driverId", &AddDriverDeploymentRequest::driverId),
        field("modelId", &AddDriverDeploymentRequest::modelId), field("comment", &AddDriverDeploymentRequest::comment),
        field("locale", &AddDriverDeploymentRequest::locale), field("osId", &AddDriverDeploymentRequest::osId),
        field("use", &AddDriverDeploymentRequest::use), field("install", &AddDriverDeploymentRequest::install),
        field("installMethod", &AddDriverDeploymentRequest::installMethod),
        field("keepConfig", &AddDriverDeploymentRequest::keepConfig));

    bool operator==(const AddDriverDeploymentRequest&) const = default;
};

// Changes whether and how a deployed driver is used and installed.
struct UpdateDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 16;
    static constexpr std::string_view form = "anything but ten zero bytes after the id changes";

    std::string deploymentId;
    std::uint8_t use = 1;
    std::uint8_t install = 0;
    std::uint8_t installMethod = 0; // one of installMethod
    std::uint8_t keepConfig = 0;    // 1: setting install keeps the configurations of queues

    static constexpr auto fields = wireOrder(field("deploymentId", &UpdateDriverDeploymentRequest::deploymentId),
                                             field("use", &UpdateDriverDeploymentRequest::use),
                                             field("install", &UpdateDriverDeploymentRequest::install),
                                             field("installMethod", &UpdateDriverDeploymentRequest::installMethod),
                                             field("keepConfig", &UpdateDriverDeploymentRequest::keepConfig));

    bool operator==(const UpdateDriverDeploymentRequest&) const = default;
};

// Removes a deployment: the command that changes one, with ten zero bytes after the id. It has to be exactly these,
// because nothing else distinguishes the two commands.
struct RemoveDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 16;
    static constexpr std::string_view form = "ten zero bytes after the id remove";

    std::string deploymentId;
    std::uint32_t zero1 = 0;
    std::uint32_t zero2 = 0;
    std::uint8_t zero3 = 0;
    std::uint8_t zero4 = 0;

    static constexpr auto fields = wireOrder(
        field("deploymentId", &RemoveDriverDeploymentRequest::deploymentId),
        field("zero1", &RemoveDriverDeploymentRequest::zero1), field("zero2", &RemoveDriverDeploymentRequest::zero2),
        field("zero3", &RemoveDriverDeploymentRequest::zero3), field("zero4", &RemoveDriverDeploymentRequest::zero4));

    bool operator==(const RemoveDriverDeploymentRequest&) const = default;
};

// Asks how many queues replacing a deployment would affect.
struct CountDeploymentConfigsRequest {
    static constexpr std::uint16_t opcode = 80;

    std::string modelId;
    std::string osId;
    wire::WideString locale;

    static constexpr auto fields = wireOrder(field("modelId", &CountDeploymentConfigsRequest::modelId),
                                             field("osId", &CountDeploymentConfigsRequest::osId),
                                             field("locale", &CountDeploymentConfigsRequest::locale));

    bool operator==(const CountDeploymentConfigsRequest&) const = default;
};

// How many queues use a model, and how many of them have a configuration for the operating system and the locale.
struct CountDeploymentConfigsReply {
    std::uint32_t queuesWithConfigs = 0;
    std::uint32_t totalQueues = 0;

    static constexpr auto fields =
        wireOrder(field("queuesWithConfigs", &CountDeploymentConfigsReply::queuesWithConfigs),
                  field("totalQueues", &CountDeploymentConfigsReply::totalQueues));

    bool operator==(const CountDeploymentConfigsReply&) const = default;
};

} // namespace protocol
