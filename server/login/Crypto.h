#pragma once

#include "server/store/Query.h"

#include <span>
#include <string>

namespace server {

// Selects the math provider and registers the algorithms that the server uses; may be called again. Throws
// std::runtime_error.
void initCrypto();

[[nodiscard]] Bytes randomBytes(std::size_t count);

// Takes the same time wherever two texts of equal length differ. An empty text equals nothing.
[[nodiscard]] bool equalInConstantTime(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right);

// HMAC-SHA-256 of the bytes followed by the units of the text.
[[nodiscard]] Bytes authenticationCode(const Bytes& key, const Bytes& bytes, const std::u16string& text);

// Throws std::runtime_error that names the step for any result of LibTomCrypt but success.
void require(int result, const char* step);

} // namespace server
