#pragma once

#include "server/store/Query.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace server {

// A pattern typed to find things by name: a part of the name or, with * for any characters and ? for one, the whole
// name. It is compared without regard to case, as names are; blanks around it do not matter, and an empty pattern
// matches every name.
class NamePattern {
public:
    explicit NamePattern(std::u16string_view typed);

    [[nodiscard]] bool matchesAll() const { return pattern_.empty(); }
    // Takes the key of a name, see nameKey.
    [[nodiscard]] bool matches(std::span<const std::uint8_t> nameKey) const;

    // The form in which a query takes the pattern.
    [[nodiscard]] const Bytes& key() const { return pattern_; }

private:
    Bytes pattern_; // two bytes a unit, and stars around a piece
};

// The SQL function nameMatches(nameKey, pattern), which compares a name's key, or a text of 8-bit characters, with the
// key of a NamePattern. It exists from the construction of this object until the connection is closed.
class NameMatching {
public:
    explicit NameMatching(sqlite3* connection);
};

} // namespace server
