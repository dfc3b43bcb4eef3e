#pragma once

#include "tests/support/Bytes.h"
#include "wire/Text.h"

#include <memory>
#include <string>

namespace client {

// An RSA key as a server has it: returns its public half and opens what was sealed with it.
class ServerKey {
public:
    explicit ServerKey(int bits = 2048);
    ~ServerKey();
    ServerKey(const ServerKey&) = delete;
    ServerKey& operator=(const ServerKey&) = delete;

    // In DER form.
    [[nodiscard]] support::Bytes publicHalf() const;

    // The text in a sealed credential; throws std::runtime_error when it cannot be opened.
    [[nodiscard]] wire::WideString open(const support::Bytes& cipher) const;

private:
    struct Key;
    std::unique_ptr<Key> key_;
};

// One key for all tests, because generating one takes long.
[[nodiscard]] const ServerKey& serverKey();

} // namespace client
