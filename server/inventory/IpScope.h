#pragma once

#include "server/inventory/Address.h"

#include <string>
#include <string_view>
#include <vector>

namespace server {

// The addresses that a report is to cover, as an administrator types them: single addresses (10.1.2.3), from one to
// another (10.1.2.3-10.1.2.9), blocks (10.1.0.0/16) and stars (10.1.*), as many as wanted, with commas, semicolons or
// blanks between them. Nothing at all means everything.
class IpScope {
public:
    // Nothing for a text that cannot be understood.
    [[nodiscard]] static std::optional<IpScope> parse(std::string_view text);

    [[nodiscard]] bool isEverything() const { return blocks_.empty(); }
    // Without an address (of a host by its name) only what covers everything does.
    [[nodiscard]] bool covers(const std::optional<Address>& address) const;

private:
    std::vector<AddressBlock> blocks_;
};

} // namespace server
