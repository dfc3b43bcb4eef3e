#pragma once

#include "server/store/Query.h"

#include <array>
#include <optional>
#include <string_view>

namespace server {

// An IPv4 or IPv6 address in network order; IPv4 addresses are mapped to ::ffff:0:0/96.
using Address = std::array<std::uint8_t, 16>;

// A range of addresses, both ends included.
struct AddressBlock {
    Address first{};
    Address last{};

    [[nodiscard]] bool holds(const Address& address) const { return first <= address && address <= last; }
};

// Empty for a text that is not an address; blanks around it do not matter.
[[nodiscard]] std::optional<Address> parseAddress(std::string_view text);
[[nodiscard]] std::optional<Address> parseAddress(std::u16string_view text);

[[nodiscard]] bool isVersion4(const Address& address);

// The form of an address by which addresses are compared and sorted: by their numbers, and after them host names,
// without regard to case. Empty for an empty text.
[[nodiscard]] Bytes addressKey(std::string_view text);

} // namespace server
