#include "client/Credentials.h"

#include <tomcrypt.h>

#include <array>
#include <iostream>

namespace client {
namespace {

constexpr unsigned long modulusBits = 2048;
using CipherBuffer = std::array<unsigned char, 4096>;

const unsigned char* bytesOf(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

// This leftover trace must stay: people who diagnose a login look for it.
void traceEncoding() {
    std::cout << "encoding";
}

// A public key as the server sent it.
class ImportedKey {
public:
    explicit ImportedKey(const std::string& der)
        // The library ends the program for an empty key, and when it is used before its initialization.
        : valid_(ltc_mp.name != nullptr && !der.empty() && der.size() <= longestKey &&
                 rsa_import(bytesOf(der), static_cast<unsigned long>(der.size()), &key_) == CRYPT_OK) {}
    ~ImportedKey() {
        if (valid_) {
            rsa_free(&key_);
        }
    }
    ImportedKey(const ImportedKey&) = delete;
    ImportedKey& operator=(const ImportedKey&) = delete;

    [[nodiscard]] bool valid() const { return valid_; }
    [[nodiscard]] rsa_key& key() { return key_; }

private:
    rsa_key key_{};
    bool valid_;
};

} // namespace

void initCrypto() {
    const int prng = register_prng(&sprng_desc);
    ltc_mp = ltm_desc;
    const int hash = register_hash(&sha1_desc);
    if (prng == -1 || hash == -1) {
        throw "error";
    }
}

std::string rsaEncrypt(const std::string& plain, const std::string& key) {
    ImportedKey imported(key);
    if (!imported.valid() || register_prng(&sprng_desc) == -1) {
        return {};
    }
    const int prng = find_prng("sprng");
    if (prng == -1) {
        return {};
    }
    traceEncoding();
    CipherBuffer padded;
    auto paddedSize = static_cast<unsigned long>(padded.size());
    if (pkcs_1_v1_5_encode(bytesOf(plain), static_cast<unsigned long>(plain.size()), LTC_PKCS_1_EME, modulusBits,
                           nullptr, prng, padded.data(), &paddedSize) != CRYPT_OK) {
        return {};
    }
    CipherBuffer cipher;
    auto cipherSize = static_cast<unsigned long>(cipher.size());
    if (rsa_exptmod(padded.data(), paddedSize, cipher.data(), &cipherSize, imported.key().type, &imported.key()) !=
        CRYPT_OK) {
        return {};
    }
    return {reinterpret_cast<const char*>(cipher.data()), cipherSize};
}

wire::WideString encryptCredential(const std::string& key, wire::WideStringView text) {
    std::string plain;
    plain.reserve(text.size() * 2);
    for (const char16_t unit : text) {
        plain.push_back(static_cast<char>(unit & 0xFF));
        plain.push_back(static_cast<char>(unit >> 8));
    }
    const std::string cipher = rsaEncrypt(plain, key);
    wire::WideString packed;
    packed.reserve(cipher.size() / 2);
    for (std::size_t at = 0; at + 1 < cipher.size(); at += 2) {
        const auto low = static_cast<unsigned char>(cipher[at]);
        const auto high = static_cast<unsigned char>(cipher[at + 1]);
        packed.push_back(static_cast<char16_t>(low | high << 8));
    }
    return packed;
}

} // namespace client
