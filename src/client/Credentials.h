#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <string>

// How a user's name, domain and password are sealed for the login: RSA under the server's public key.
namespace client {

// The bytes that a key may have. One of 2048 bits has some 300; a key as long as a server may send would keep the
// console busy for hours.
constexpr std::uint32_t longestKey = 2048;

// Readies the cryptography; doing it again does no harm. Throws the plain string "error".
void initCrypto();

// The plain bytes under a 2048-bit key in DER form, 256 bytes; empty for every failure. The padding leaves room for 245
// bytes. Writes a trace to the standard output, which a host that puts data there has to reckon with.
[[nodiscard]] std::string rsaEncrypt(const std::string& plain, const std::string& key);

// The sealed text packed into a wide string, two bytes to a unit, the first one low: 128 units, or empty for every
// failure. Longer texts than 122 units cannot be sealed.
[[nodiscard]] wire::WideString encryptCredential(const std::string& key, wire::WideStringView text);

} // namespace client
