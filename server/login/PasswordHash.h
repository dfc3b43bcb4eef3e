#pragma once

#include "server/store/Query.h"

#include <string>

namespace server {

// A password as it is kept: salted, and slow to try.
struct PasswordHash {
    static constexpr int currentIterations = 200000;

    Bytes salt;
    int iterations = currentIterations;
    Bytes hash; // PBKDF2 with SHA-256

    // Hashes with a new salt. Throws std::runtime_error when there are no random numbers.
    [[nodiscard]] static PasswordHash of(const std::u16string& password);

    [[nodiscard]] bool matches(const std::u16string& password) const;
};

} // namespace server
