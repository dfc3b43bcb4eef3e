#pragma once

#include <cstdint>

// Which migration plans a list asks for.
namespace protocol::schemaListKind {

constexpr std::uint32_t all = 0; // with an id those of that report
constexpr std::uint32_t one = 1;

} // namespace protocol::schemaListKind
