#pragma once

#include "client/CQVXAdminClass2.h"

namespace client {

// The part of CQVXAdminClass for rule groups and entries, page limits, price plans, short ids and user messages.
class RuleCommands {
public:
    explicit RuleCommands(CQVXAdminClass2& client) : client_(client) {}

private:
    CQVXAdminClass2& client_;
};

} // namespace client
