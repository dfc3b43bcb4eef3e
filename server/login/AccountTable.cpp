#include "server/login/AccountTable.h"

#include "server/store/NameKey.h"

namespace server {

AccountTable::AccountTable(sqlite3* connection)
    : find_(connection, "SELECT salt, iterations, hash FROM account WHERE nameKey = ?"),
      save_(connection, "INSERT INTO account (nameKey, name, salt, iterations, hash) VALUES (?, ?, ?, ?, ?) "
                        "ON CONFLICT (nameKey) DO UPDATE SET name = excluded.name, salt = excluded.salt, "
                        "iterations = excluded.iterations, hash = excluded.hash"),
      key_(connection, "SELECT privateKey FROM loginKey"),
      saveKey_(connection, "INSERT INTO loginKey (onlyOne, privateKey) VALUES (1, ?)") {}

std::optional<PasswordHash> AccountTable::find(const std::u16string& name) {
    auto rows = find_.run(nameKey(name));
    if (!rows.next()) {
        return std::nullopt;
    }
    PasswordHash found;
    const auto salt = rows.bytes(0);
    found.salt.assign(salt.begin(), salt.end());
    found.iterations = static_cast<int>(rows.number(1));
    const auto hash = rows.bytes(2);
    found.hash.assign(hash.begin(), hash.end());
    return found;
}

void AccountTable::save(const std::u16string& name, const PasswordHash& password) {
    save_.execute(nameKey(name), name, password.salt, password.iterations, password.hash);
}

std::optional<Bytes> AccountTable::privateKey() {
    auto rows = key_.run();
    if (!rows.next()) {
        return std::nullopt;
    }
    const auto der = rows.bytes(0);
    return Bytes(der.begin(), der.end());
}

void AccountTable::savePrivateKey(const Bytes& der) {
    saveKey_.execute(der);
}

} // namespace server
