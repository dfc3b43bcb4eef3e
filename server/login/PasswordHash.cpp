#include "server/login/PasswordHash.h"

#include "server/login/Crypto.h"

#include <tomcrypt.h>

#include <algorithm>

namespace server {

namespace {

constexpr std::size_t saltSize = 16;
constexpr std::size_t hashSize = 32;

Bytes derive(const std::u16string& password, const Bytes& salt, int iterations) {
    Bytes hash(hashSize);
    unsigned long size = hashSize;
    // The library rejects an empty key; to HMAC a key of one zero byte is the same.
    const auto* bytes = reinterpret_cast<const unsigned char*>(password.c_str());
    const auto length = static_cast<unsigned long>(std::max<std::size_t>(password.size() * 2, 1));
    require(pkcs_5_alg2(bytes, length, salt.data(), static_cast<unsigned long>(salt.size()), iterations,
                        find_hash("sha256"), hash.data(), &size),
            "hashing a password");
    return hash;
}

} // namespace

PasswordHash PasswordHash::of(const std::u16string& password) {
    initCrypto();
    PasswordHash made{.salt = randomBytes(saltSize), .iterations = currentIterations, .hash = {}};
    made.hash = derive(password, made.salt, made.iterations);
    return made;
}

bool PasswordHash::matches(const std::u16string& password) const {
    initCrypto();
    return equalInConstantTime(derive(password, salt, iterations), hash);
}

} // namespace server
