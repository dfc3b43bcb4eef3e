#pragma once

#include "server/Query.h"

#include <span>
#include <string>

namespace server {

// Chooses the mathematics provider and registers the algorithms that the server uses; doing it again does no harm.
// Throws std::runtime_error.
void initCrypto();

[[nodiscard]] Bytes randomBytes(std::size_t count);

// Takes the same time wherever two texts of one length differ.
[[nodiscard]] bool equalInConstantTime(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right);

// Throws std::runtime_error that names the step for any result of LibTomCrypt but success.
void require(int result, const char* step);

} // namespace server
