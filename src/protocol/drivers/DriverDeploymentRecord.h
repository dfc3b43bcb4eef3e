#pragma once

#include "protocol/WireOrder.h"

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
    std::uint8_t installMethod = 0; // an InstallMethod

    static constexpr auto fields = wireOrder(
        field("version", &DriverDeploymentRecord::version), field("comment", &DriverDeploymentRecord::comment),
        field("deploymentId", &DriverDeploymentRecord::deploymentId), field("osId", &DriverDeploymentRecord::osId),
        field("osName", &DriverDeploymentRecord::osName), field("locale", &DriverDeploymentRecord::locale),
        field("use", &DriverDeploymentRecord::use), field("install", &DriverDeploymentRecord::install),
        field("installMethod", &DriverDeploymentRecord::installMethod));

    bool operator==(const DriverDeploymentRecord&) const = default;
};

} // namespace protocol
