#pragma once

#include "server/inventory/Address.h"

#include <vector>

namespace server {

// An active IP range: a block of addresses and what is to be done with the printers in it.
struct ActiveRange {
    AddressBlock block;
    std::int32_t rangeType = 0;
};

// Which of the active IP ranges decides about an address, where several hold it: one that forces before the others,
// then the narrowest, then the one that comes last.
class RangeMap {
public:
    explicit RangeMap(const std::vector<ActiveRange>& ranges);

    // The range type; nothing outside of all ranges.
    [[nodiscard]] std::optional<std::int32_t> at(const Address& address) const;

private:
    // From this address on, up to the next stretch.
    struct Stretch {
        Address first{};
        std::optional<std::int32_t> rangeType;
    };

    std::vector<Stretch> stretches_;
};

} // namespace server
