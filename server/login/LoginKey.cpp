#include "server/login/LoginKey.h"

#include "server/login/Crypto.h"

#include <tomcrypt.h>

#include <algorithm>
#include <cstring>

namespace server {

namespace {

constexpr int modulusBytes = 256;
constexpr long publicExponent = 65537;
constexpr std::size_t largestDer = 4096;
constexpr std::size_t paddingBegin = 2;
constexpr std::size_t shortestPadding = 8;

// block = 00 02 (padding: bytes other than 0) 00 text
std::optional<std::u16string> textIn(std::span<const std::uint8_t> block) {
    const auto end = std::find(block.begin() + paddingBegin, block.end(), std::uint8_t{0});
    const auto padding = static_cast<std::size_t>(end - block.begin()) - paddingBegin;
    if (block[0] != 0 || block[1] != 2 || end == block.end() || padding < shortestPadding) {
        return std::nullopt;
    }
    const auto bytes = block.subspan(paddingBegin + padding + 1);
    if (bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    std::u16string text(bytes.size() / 2, u'\0');
    if (!text.empty()) {
        std::memcpy(text.data(), bytes.data(), bytes.size());
    }
    return text;
}

} // namespace

struct LoginKey::Key {
    rsa_key rsa{};
    bool made = false;
    Key() = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() {
        if (made) {
            rsa_free(&rsa);
        }
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
    if (key->rsa.type != PK_PRIVATE) {
        throw std::runtime_error("reading the login key: it has no private half");
    }
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

// Removes the padding itself, because the library's function rejects an empty text, and the domain is usually empty.
std::optional<std::u16string> LoginKey::unseal(std::span<const std::uint8_t> sealed) const {
    Bytes padded(modulusBytes);
    auto size = static_cast<unsigned long>(padded.size());
    std::optional<std::u16string> text;
    if (sealed.size() == modulusBytes && rsa_exptmod(sealed.data(), static_cast<unsigned long>(sealed.size()),
                                                     padded.data(), &size, PK_PRIVATE, &key_->rsa) == CRYPT_OK) {
        text = textIn(padded);
    }
    zeromem(padded.data(), padded.size());
    return text;
}

} // namespace server
