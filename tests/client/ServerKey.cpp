#include "tests/client/ServerKey.h"

#include <tomcrypt.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace client {
namespace {

void check(int result) {
    if (result != CRYPT_OK) {
        throw std::runtime_error(error_to_string(result));
    }
}

} // namespace

struct ServerKey::Key {
    rsa_key rsa{};
};

ServerKey::ServerKey(int bits) : key_(std::make_unique<Key>()) {
    ltc_mp = ltm_desc;
    if (register_prng(&sprng_desc) == -1) {
        throw std::runtime_error("no source of randomness");
    }
    check(rsa_make_key(nullptr, find_prng("sprng"), bits / 8, 65537, &key_->rsa));
}

ServerKey::~ServerKey() {
    rsa_free(&key_->rsa);
}

support::Bytes ServerKey::publicHalf() const {
    std::array<unsigned char, 4096> der{};
    unsigned long size = der.size();
    check(rsa_export(der.data(), &size, PK_PUBLIC, &key_->rsa));
    return {der.begin(), der.begin() + static_cast<std::ptrdiff_t>(size)};
}

wire::WideString ServerKey::open(const support::Bytes& cipher) const {
    if (cipher.empty()) {
        throw std::runtime_error("there is no cipher");
    }
    std::array<unsigned char, 4096> padded{};
    unsigned long paddedSize = padded.size();
    check(rsa_exptmod(cipher.data(), static_cast<unsigned long>(cipher.size()), padded.data(), &paddedSize, PK_PRIVATE,
                      &key_->rsa));
    // 00 02, at least eight bytes of padding, 00, the text. The library's own decoder rejects an empty text.
    const unsigned char* const begin = padded.data();
    const unsigned char* const end = begin + paddedSize;
    const auto* const separator = std::find(begin + 2, end, 0);
    if (paddedSize != 256 || padded[0] != 0 || padded[1] != 2 || separator == end || separator - begin < 10) {
        throw std::runtime_error("the padding is wrong");
    }
    wire::WideString text;
    for (const auto* at = separator + 1; at + 1 < end; at += 2) {
        text.push_back(static_cast<char16_t>(at[0] | at[1] << 8));
    }
    return text;
}

const ServerKey& serverKey() {
    static const ServerKey key;
    return key;
}

} // namespace client
