#pragma once

#include "platform/SettingsStore.h"

#include <map>
#include <string>

namespace support {

// Settings that a test sets up and inspects.
class MemorySettingsStore final : public platform::SettingsStore {
public:
    std::map<std::string, wire::WideString, std::less<>> values;
    bool opens = true;  // false: there is no store to read
    bool stores = true; // false: nothing can be written

    [[nodiscard]] bool exists() const override { return opens; }
    [[nodiscard]] std::optional<wire::WideString> read(std::string_view name) const override {
        const auto found = values.find(name);
        return opens && found != values.end() ? std::optional(found->second) : std::nullopt;
    }
    bool write(std::string_view name, const wire::WideString& value) override {
        if (stores) {
            values.insert_or_assign(std::string(name), value);
            opens = true;
        }
        return stores;
    }
};

} // namespace support
