#include "server/login/Accounts.h"

#include "server/login/Crypto.h"

namespace server {

Accounts::Accounts(const Store& store)
    : connection_(store.openConnection()), table_(connection_->table<AccountTable>()) {
    initCrypto();
    proofKey_ = randomBytes(32);
}

void Accounts::save(const std::u16string& name, const std::u16string& password) {
    const auto kept = table_.find(name);
    if (!kept || !kept->matches(password)) {
        table_.save(name, PasswordHash::of(password));
    }
}

Bytes Accounts::publicKey() {
    return key().publicDer();
}

const LoginKey& Accounts::key() {
    if (!key_) {
        if (const auto der = table_.privateKey()) {
            key_ = LoginKey::fromPrivateDer(*der);
        } else {
            key_ = LoginKey::generate();
            table_.savePrivateKey(key_->privateDer());
        }
    }
    return *key_;
}

// A password that nobody has, to compare with when there is no such account.
const PasswordHash& Accounts::nobody() {
    if (!nobody_) {
        nobody_ = PasswordHash{.salt = randomBytes(16), .hash = randomBytes(32)};
    }
    return *nobody_;
}

// The proof of a password is a quick hash under a key that only this process knows, and keeps only in memory. Proofs
// are kept only for correct passwords, so they do not help anybody to try passwords faster.
bool Accounts::matches(const PasswordHash& account, const std::u16string& password) {
    const auto proof = authenticationCode(proofKey_, account.hash, password);
    const auto known = proofs_.find(account.hash);
    if (known != proofs_.end() && equalInConstantTime(known->second, proof)) {
        return true;
    }
    if (!account.matches(password)) {
        return false;
    }
    proofs_[account.hash] = proof;
    return true;
}

bool Accounts::verify(const SealedCredentials& sealed) {
    const auto user = key().unseal(sealed[0]);
    const auto domain = key().unseal(sealed[1]);
    const auto password = key().unseal(sealed[2]);
    const auto account = table_.find(user.value_or(std::u16string()));
    const bool matches = this->matches(account.value_or(nobody()), password.value_or(std::u16string()));
    return matches && account && user && domain && password;
}

} // namespace server
