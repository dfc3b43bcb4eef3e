#pragma once

#include "server/inventory/Address.h"

#include <vector>

namespace server {

// An active IP range: a block of addresses and what to do with the printers in it.
struct ActiveRange {
    AddressBlock block;
    std::int32_t rangeType = 0;
};

// Which of the active IP ranges decides about an address that several contain: forcing ranges take precedence, then the
// narrowest, then the last one.
class RangeMap {
public:
    explicit RangeMap(const std::vector<ActiveRange>& ranges);

    // The range type; empty outside all ranges.
    [[nodiscard]] std::optional<std::int32_t> at(const Address& address) const;

private:
    // Applies from this address up to the next stretch.
    struct Stretch {
        Address first{};
        std::optional<std::int32_t> rangeType;
    };

    std::vector<Stretch> stretches_;
};

} // namespace server
