#pragma once

#include "client/CQVXAdminClass2.h"

namespace client {

// The part of CQVXAdminClass for alarm programs and e-mail recipients.
class AlarmCommands {
public:
    explicit AlarmCommands(CQVXAdminClass2& client) : client_(client) {}

private:
    CQVXAdminClass2& client_;
};

} // namespace client
