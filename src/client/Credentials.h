#pragma once

#include "wire/Text.h"

#include <string>

// How a user's name, domain and password are sealed for the login: RSA under the server's public key.
namespace client {

// Readies the cryptography; doing it again does no harm. Throws the plain string "error".
void initCrypto();

// The plain bytes under a 2048-bit key in DER form, 256 bytes; empty for every failure. The padding leaves room for 245
// bytes. Writes a trace to the standard output, which a host that puts data there has to reckon with.
[[nodiscard]] std::string rsaEncrypt(const std::string& plain, const std::string& key);

// The sealed text packed into a wide string, two bytes to a unit, the first one low: 128 units, or empty for every
// failure. Longer texts than 122 units cannot be sealed.
[[nodiscard]] wire::WideString encryptCredential(const std::string& key, wire::WideStringView text);

} // namespace client
