#pragma once

#include "server/store/Query.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace server {

// The key pair with which consoles seal the credentials of a login: RSA with 2048 bits. Throws std::runtime_error.
class LoginKey {
public:
    [[nodiscard]] static LoginKey generate();
    [[nodiscard]] static LoginKey fromPrivateDer(std::span<const std::uint8_t> der);

    LoginKey(LoginKey&&) noexcept;
    LoginKey& operator=(LoginKey&&) noexcept;
    ~LoginKey();

    [[nodiscard]] Bytes privateDer() const;
    [[nodiscard]] Bytes publicDer() const;

    // The text that a console sealed (PKCS #1 v1.5, low byte of each unit first); empty when the bytes were not sealed
    // with this key.
    [[nodiscard]] std::optional<std::u16string> unseal(std::span<const std::uint8_t> sealed) const;

private:
    struct Key;
    explicit LoginKey(std::unique_ptr<Key> key);
    [[nodiscard]] Bytes exported(int which) const;

    std::unique_ptr<Key> key_;
};

} // namespace server
