#pragma once

#include "client/CQVXAdminClass2.h"

namespace client {

// The part of CQVXAdminClass for configurations of driver models and of queues.
class ConfigurationCommands {
public:
    explicit ConfigurationCommands(CQVXAdminClass2& client) : client_(client) {}

private:
    CQVXAdminClass2& client_;
};

} // namespace client
