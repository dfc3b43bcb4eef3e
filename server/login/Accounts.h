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

// Verifies credentials. Slow on purpose, so it runs on its own thread; used by one thread at a time.
class Accounts {
public:
    explicit Accounts(const Store& store);

    void save(const std::u16string& name, const std::u16string& password);

    // Creates the key when it is first needed.
    [[nodiscard]] Bytes publicKey();

    // Takes the same time for an unknown name, a wrong password and bytes that cannot be unsealed. The domain only has
    // to be decryptable.
    [[nodiscard]] bool verify(const SealedCredentials& sealed);

private:
    [[nodiscard]] const LoginKey& key();
    [[nodiscard]] const PasswordHash& nobody();
    [[nodiscard]] bool matches(const PasswordHash& account, const std::u16string& password);

    std::unique_ptr<StoreConnection> connection_;
    AccountTable& table_; // belongs to the connection
    std::optional<LoginKey> key_;
    std::optional<PasswordHash> nobody_;
    Bytes proofKey_;
    std::map<Bytes, Bytes> proofs_; // of correct passwords, by the hash of their account
};

} // namespace server
