#include "tests/server/support/Sealing.h"

#include "server/login/Crypto.h"

#include <tomcrypt.h>

namespace server::test {

Bytes seal(const Bytes& publicDer, const std::u16string& text) {
    initCrypto();
    rsa_key key;
    require(rsa_import(publicDer.data(), static_cast<unsigned long>(publicDer.size()), &key), "importing a key");
    Bytes sealed(256);
    auto size = static_cast<unsigned long>(sealed.size());
    const int result = rsa_encrypt_key_ex(reinterpret_cast<const unsigned char*>(text.data()),
                                          static_cast<unsigned long>(text.size() * 2), sealed.data(), &size, nullptr, 0,
                                          nullptr, find_prng("sprng"), -1, LTC_PKCS_1_V1_5, &key);
    rsa_free(&key);
    require(result, "sealing");
    return sealed;
}

} // namespace server::test
