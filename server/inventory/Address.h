#pragma once

#include "server/store/Query.h"

#include <array>
#include <optional>
#include <string_view>

namespace server {

// An address of version 4 or 6 in the order of its bytes; one of version 4 stands behind ::ffff:0:0.
using Address = std::array<std::uint8_t, 16>;

// Both ends belong to it.
struct AddressBlock {
    Address first{};
    Address last{};

    [[nodiscard]] bool holds(const Address& address) const { return first <= address && address <= last; }
};

// Nothing for a text that is no address; blanks around it do not matter.
[[nodiscard]] std::optional<Address> parseAddress(std::string_view text);
[[nodiscard]] std::optional<Address> parseAddress(std::u16string_view text);

[[nodiscard]] bool isVersion4(const Address& address);

// The form of an address by which addresses are compared and sorted: in the order of their numbers, and behind them
// names of hosts, in which capital and small letters are the same. Empty for an empty text.
[[nodiscard]] Bytes addressKey(std::string_view text);

} // namespace server
