#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <string>

// How a user's name, domain and password are sealed for the login: RSA under the server's public key.
namespace client {

// The longest accepted key, in bytes. One of 2048 bits takes about 300; a key as long as a server may send would keep
// the console busy for hours.
constexpr std::uint32_t longestKey = 2048;

// Initializes the cryptography; may be called again. Throws the plain string "error".
void initCrypto();

// The plain bytes encrypted with a 2048-bit key in DER form, 256 bytes; empty for every failure. The padding leaves
// room for 245 bytes. Writes a trace to standard output, which matters to a host that writes data there.
[[nodiscard]] std::string rsaEncrypt(const std::string& plain, const std::string& key);

// The sealed text packed into a wide string, two bytes to a unit, the first one low: 128 units, or empty for every
// failure. Longer texts than 122 units cannot be sealed.
[[nodiscard]] wire::WideString encryptCredential(const std::string& key, wire::WideStringView text);

} // namespace client
