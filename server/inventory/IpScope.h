#pragma once

#include "server/inventory/Address.h"

#include <string>
#include <string_view>
#include <vector>

namespace server {

// The addresses that a report covers, as an administrator types them: single addresses (10.1.2.3), ranges
// (10.1.2.3-10.1.2.9), blocks (10.1.0.0/16) and stars (10.1.*), any number of them, separated by commas, semicolons or
// blanks. An empty text covers everything.
class IpScope {
public:
    // Empty for a text that cannot be understood.
    [[nodiscard]] static std::optional<IpScope> parse(std::string_view text);

    [[nodiscard]] bool isEverything() const { return blocks_.empty(); }
    // Without an address (a host given by name) true only for a scope that covers everything.
    [[nodiscard]] bool covers(const std::optional<Address>& address) const;

private:
    std::vector<AddressBlock> blocks_;
};

} // namespace server
