#include "server/Crypto.h"

#define LTM_DESC
#include <tomcrypt.h>

#include <mutex>
#include <stdexcept>

namespace server {

void require(int result, const char* step) {
    if (result != CRYPT_OK)
        throw std::runtime_error(std::string(step) + ": " + error_to_string(result));
}

void initCrypto() {
    static std::once_flag once;
    std::call_once(once, [] {
        ltc_mp = ltm_desc;
        if (register_prng(&sprng_desc) < 0 || register_hash(&sha256_desc) < 0)
            throw std::runtime_error("the cryptographic library cannot be set up");
    });
}

Bytes randomBytes(std::size_t count) {
    Bytes bytes(count);
    if (rng_get_bytes(bytes.data(), static_cast<unsigned long>(count), nullptr) != count)
        throw std::runtime_error("the system gives no random numbers");
    return bytes;
}

bool equalInConstantTime(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right) {
    return left.size() == right.size() && mem_neq(left.data(), right.data(), left.size()) == 0;
}

} // namespace server
