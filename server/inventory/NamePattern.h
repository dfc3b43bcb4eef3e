#pragma once

#include "server/store/Query.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace server {

// What somebody types to find things by their name: a piece of the name or, with * for any units and ? for one, the
// whole of it. Capital and small letters are the same as in names; blanks around it do not matter, and nothing at all
// matches every name.
class NamePattern {
public:
    explicit NamePattern(std::u16string_view typed);

    [[nodiscard]] bool matchesAll() const { return pattern_.empty(); }
    // Takes the key of a name, see nameKey.
    [[nodiscard]] bool matches(std::span<const std::uint8_t> nameKey) const;

    // The form in which a query takes it.
    [[nodiscard]] const Bytes& key() const { return pattern_; }

private:
    Bytes pattern_; // two bytes a unit, and stars around a piece
};

// The function of SQL nameMatches(nameKey, pattern): a name's key, or a text of 8-bit characters, against the key of a
// NamePattern. It is there from when this object was made on for as long as the connection lives.
class NameMatching {
public:
    explicit NameMatching(sqlite3* connection);
};

} // namespace server
