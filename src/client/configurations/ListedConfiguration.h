#pragma once

#include "protocol/configurations/Configuration.h"

namespace client {

// A configuration as a list brings it: its date as the server wrote it, to sort by, beside the text that people read.
struct ListedConfiguration : protocol::ConfigurationRecord {
    wire::WideString dateText; // date in the user's locale

    bool operator==(const ListedConfiguration&) const = default;
};

} // namespace client
