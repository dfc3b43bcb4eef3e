#include "server/PasswordHash.h"

#include "server/Crypto.h"

#include <tomcrypt.h>

namespace server {

namespace {

constexpr std::size_t saltSize = 16;
constexpr std::size_t hashSize = 32;

Bytes derive(const std::u16string& password, const Bytes& salt, int iterations) {
    Bytes hash(hashSize);
    unsigned long size = hashSize;
    const auto* bytes = reinterpret_cast<const unsigned char*>(password.data());
    require(pkcs_5_alg2(bytes, static_cast<unsigned long>(password.size() * 2), salt.data(),
                        static_cast<unsigned long>(salt.size()), iterations, find_hash("sha256"), hash.data(), &size),
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
