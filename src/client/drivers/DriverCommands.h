#pragma once

#include "client/CQVXAdminClass2.h"

namespace client {

// The part of CQVXAdminClass for brands, models, drivers and deployments.
class DriverCommands {
public:
    explicit DriverCommands(CQVXAdminClass2& client) : client_(client) {}

private:
    CQVXAdminClass2& client_;
};

} // namespace client
