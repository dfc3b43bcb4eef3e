#pragma once

#include "server/login/AccountTable.h"
#include "server/login/LoginKey.h"
#include "server/store/Store.h"

#include <array>
#include <map>
#include <optional>

namespace server {

// The three credentials of a login, sealed: user, domain, password.
using SealedCredentials = std::array<Bytes, 3>;

// Proves who somebody is. Slow on purpose, so it works on a thread of its own; used by one thread at a time.
class Accounts {
public:
    explicit Accounts(const Store& store);

    void save(const std::u16string& name, const std::u16string& password);

    // The key is made when it is first needed.
    [[nodiscard]] Bytes publicKey();

    // Takes the same time for an unknown name, a wrong password and bytes that cannot be unsealed. The domain only has
    // to be readable.
    [[nodiscard]] bool verify(const SealedCredentials& sealed);

private:
    [[nodiscard]] const LoginKey& key();
    [[nodiscard]] const PasswordHash& nobody();
    [[nodiscard]] bool matches(const PasswordHash& account, const std::u16string& password);

    std::unique_ptr<StoreConnection> connection_;
    AccountTable& table_; // of the connection
    std::optional<LoginKey> key_;
    std::optional<PasswordHash> nobody_;
    Bytes proofKey_;
    std::map<Bytes, Bytes> proofs_; // of passwords that were right, by the hash of their account
};

} // namespace server
