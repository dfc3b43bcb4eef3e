#pragma once

#include "wire/Text.h"

#include <optional>
#include <string_view>

namespace platform {

// Where the login keeps its four values between sessions: "ServerName", "ServerPort", "UserName", "DomainName". The
// registry on Windows, a small INI file elsewhere. Never holds a password.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // False when there is no store yet (nothing has been written) or it can't be opened for reading.
    [[nodiscard]] virtual bool exists() const = 0;
    // Empty when the store has no such value.
    [[nodiscard]] virtual std::optional<wire::WideString> read(std::string_view name) const = 0;
    // A value that another program has stored under a key of the registry, such as "SOFTWARE\\VantrelSrv". Without a
    // registry, such values are read from this store by their names alone.
    [[nodiscard]] virtual std::optional<wire::WideString> readOf(std::string_view /*key*/,
                                                                 std::string_view name) const {
        return read(name);
    }
    // False when the value could not be stored; nothing else is lost then.
    virtual bool write(std::string_view name, const wire::WideString& value) = 0;
};

} // namespace platform
