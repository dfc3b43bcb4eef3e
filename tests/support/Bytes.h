#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Bytes of the wire for tests, built without any code of the programs under test.
namespace support {

using Bytes = std::vector<std::uint8_t>;

// Parses "01 05 00" into bytes. Blanks and line breaks are ignored; throws std::invalid_argument for anything else.
[[nodiscard]] Bytes hex(std::string_view text);

// The reverse, for readable failures: "01 05 00".
[[nodiscard]] std::string toHex(const Bytes& bytes);

// Needs a using declaration, because the type itself is in another namespace.
[[nodiscard]] Bytes operator+(Bytes left, const Bytes& right);

// A message of the kind 1 around the bytes of its fields.
[[nodiscard]] Bytes dataMessage(const Bytes& fields);

[[nodiscard]] Bytes commandMessage(std::uint16_t opcode, std::uint16_t version);

// A frame around messages; its checksum and size are correct unless they are given.
[[nodiscard]] Bytes frame(const std::vector<Bytes>& messages, std::optional<std::uint32_t> checksum = {},
                          std::optional<std::uint32_t> size = {});

// One frame with the count as a u16, then one for each record, as most lists are sent.
[[nodiscard]] Bytes countedList(const std::vector<Bytes>& records);

} // namespace support
