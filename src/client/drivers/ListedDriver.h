#pragma once

#include "protocol/drivers/Driver.h"

namespace client {

// A driver as a list brings it: its version as it is shown, and the upload date as the server wrote it, to sort by,
// beside the text that people read.
struct ListedDriver : protocol::DriverRecord {
    wire::WideString uploadText; // uploadDate in the user's locale

    bool operator==(const ListedDriver&) const = default;
};

} // namespace client
