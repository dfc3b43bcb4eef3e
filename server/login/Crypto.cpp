#include "server/login/Crypto.h"

#define LTM_DESC
#include <tomcrypt.h>

#include <mutex>
#include <stdexcept>

namespace server {

void require(int result, const char* step) {
    if (result != CRYPT_OK) {
        throw std::runtime_error(std::string(step) + ": " + error_to_string(result));
    }
}

void initCrypto() {
    static std::once_flag once;
    std::call_once(once, [] {
        ltc_mp = ltm_desc;
        if (register_prng(&sprng_desc) < 0 || register_hash(&sha256_desc) < 0) {
            throw std::runtime_error("the cryptographic library cannot be set up");
        }
    });
}

Bytes randomBytes(std::size_t count) {
    Bytes bytes(count);
    if (rng_get_bytes(bytes.data(), static_cast<unsigned long>(count), nullptr) != count) {
        throw std::runtime_error("the system provides no random numbers");
    }
    return bytes;
}

bool equalInConstantTime(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right) {
    return left.size() == right.size() && !left.empty() && mem_neq(left.data(), right.data(), left.size()) == 0;
}

Bytes authenticationCode(const Bytes& key, const Bytes& bytes, const std::u16string& text) {
    Bytes message = bytes;
    const auto* units = reinterpret_cast<const std::uint8_t*>(text.data());
    message.insert(message.end(), units, units + text.size() * 2);
    Bytes code(32);
    auto size = static_cast<unsigned long>(code.size());
    require(hmac_memory(find_hash("sha256"), key.data(), static_cast<unsigned long>(key.size()), message.data(),
                        static_cast<unsigned long>(message.size()), code.data(), &size),
            "verifying a password");
    zeromem(message.data(), message.size());
    return code;
}

} // namespace server
