#include "server/LoginKey.h"

#include "server/Crypto.h"

#include <tomcrypt.h>

#include <cstring>

namespace server {

namespace {

constexpr int modulusBytes = 256;
constexpr long publicExponent = 65537;
constexpr std::size_t largestDer = 4096;

} // namespace

struct LoginKey::Key {
    rsa_key rsa{};
    bool made = false;
    Key() = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() {
        if (made)
            rsa_free(&rsa);
    }
};

LoginKey::LoginKey(std::unique_ptr<Key> key) : key_(std::move(key)) {}
LoginKey::LoginKey(LoginKey&&) noexcept = default;
LoginKey& LoginKey::operator=(LoginKey&&) noexcept = default;
LoginKey::~LoginKey() = default;

LoginKey LoginKey::generate() {
    initCrypto();
    auto key = std::make_unique<Key>();
    require(rsa_make_key(nullptr, find_prng("sprng"), modulusBytes, publicExponent, &key->rsa), "making the login key");
    key->made = true;
    return LoginKey(std::move(key));
}

LoginKey LoginKey::fromPrivateDer(std::span<const std::uint8_t> der) {
    initCrypto();
    auto key = std::make_unique<Key>();
    require(rsa_import(der.data(), static_cast<unsigned long>(der.size()), &key->rsa), "reading the login key");
    key->made = true;
    if (key->rsa.type != PK_PRIVATE)
        throw std::runtime_error("reading the login key: it has no private half");
    return LoginKey(std::move(key));
}

Bytes LoginKey::privateDer() const {
    return exported(PK_PRIVATE);
}

Bytes LoginKey::publicDer() const {
    return exported(PK_PUBLIC);
}

Bytes LoginKey::exported(int which) const {
    Bytes der(largestDer);
    auto size = static_cast<unsigned long>(der.size());
    require(rsa_export(der.data(), &size, which, &key_->rsa), "writing the login key");
    der.resize(size);
    return der;
}

std::optional<std::u16string> LoginKey::unseal(std::span<const std::uint8_t> sealed) const {
    Bytes plain(modulusBytes);
    auto size = static_cast<unsigned long>(plain.size());
    int valid = 0;
    const int result = rsa_decrypt_key_ex(sealed.data(), static_cast<unsigned long>(sealed.size()), plain.data(), &size,
                                          nullptr, 0, -1, LTC_PKCS_1_V1_5, &valid, &key_->rsa);
    std::optional<std::u16string> text;
    if (result == CRYPT_OK && valid == 1 && size % 2 == 0) {
        text.emplace(size / 2, u'\0');
        if (size > 0)
            std::memcpy(text->data(), plain.data(), size);
    }
    zeromem(plain.data(), plain.size());
    return text;
}

} // namespace server
