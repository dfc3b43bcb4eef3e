#pragma once

#include "client/ClientHooks.h"
#include "wire/Text.h"

#include <cstdint>
#include <memory>
#include <string>

namespace client {

// The server and the user of all commands.
class CQVXAdminClassProperties {
public:
    std::uint32_t connectTimeout = 10; // seconds
    std::string host;                  // name or dotted address
    std::uint16_t port = 0;
    wire::WideString userName;   // as typed at login
    wire::WideString domainName; // as typed at login
    ClientHooks hooks;
};

// The settings of the whole program: null until a login makes them.
inline std::shared_ptr<CQVXAdminClassProperties> theProperties;

} // namespace client
