#pragma once

#include <boost/uuid/uuid.hpp>

#include <array>
#include <string>
#include <string_view>

namespace wire {

using Uuid = boost::uuids::uuid;

// A time-based id in lower-case text, 36 characters; throws std::runtime_error "Failed to create uuid".
[[nodiscard]] std::string createUuid();

// A random (version 4) id, for records created here.
[[nodiscard]] Uuid randomUuid();

constexpr std::size_t uuidLength = 36;

// The 36 lower-case characters of an id.
[[nodiscard]] std::string toText(const Uuid& uuid);
[[nodiscard]] std::array<char, uuidLength> uuidCharacters(const Uuid& uuid);

// Accepts upper and lower case, dashes in all their places or nowhere, and enclosing braces; throws std::runtime_error
// "invalid uuid string" for anything else, an empty text included.
[[nodiscard]] Uuid parseUuid(std::string_view text);

} // namespace wire
