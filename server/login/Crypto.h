#pragma once

#include "server/store/Query.h"

#include <span>
#include <string>

namespace server {

// Chooses the mathematics provider and registers the algorithms that the server uses; doing it again does no harm.
// Throws std::runtime_error.
void initCrypto();

[[nodiscard]] Bytes randomBytes(std::size_t count);

// Takes the same time wherever two texts of one length differ. Nothing equals an empty one.
[[nodiscard]] bool equalInConstantTime(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right);

// HMAC with SHA-256 of the bytes and the units of the text after them.
[[nodiscard]] Bytes authenticationCode(const Bytes& key, const Bytes& bytes, const std::u16string& text);

// Throws std::runtime_error that names the step for any result of LibTomCrypt but success.
void require(int result, const char* step);

} // namespace server
