#pragma once

#include "server/login/PasswordHash.h"
#include "server/store/Query.h"

#include <optional>
#include <string>

namespace server {

// Who may log in, and the key that logins are sealed with. Account names ignore case. Throws StoreError.
class AccountTable {
public:
    explicit AccountTable(sqlite3* connection);

    [[nodiscard]] std::optional<PasswordHash> find(const std::u16string& name);
    // Adds the account, or gives it a new password.
    void save(const std::u16string& name, const PasswordHash& password);

    [[nodiscard]] std::optional<Bytes> privateKey();
    void savePrivateKey(const Bytes& der);

private:
    Query find_;
    Query save_;
    Query key_;
    Query saveKey_;
};

} // namespace server
