#pragma once

#include "client/CQVXAdminClass2.h"

namespace client {

// The part of CQVXAdminClass for inventory reports, migration plans and IP ranges.
class InventoryCommands {
public:
    explicit InventoryCommands(CQVXAdminClass2& client) : client_(client) {}

private:
    CQVXAdminClass2& client_;
};

} // namespace client
