#pragma once

#include "platform/SettingsStore.h"

#include <map>
#include <string>

namespace desktop {

// Settings with some values overridden on the command line.
class PrefilledSettings final : public platform::SettingsStore {
public:
    // The store outlives it and takes what is written.
    PrefilledSettings(platform::SettingsStore& store, std::map<std::string, wire::WideString, std::less<>> given);

    [[nodiscard]] bool exists() const override;
    [[nodiscard]] std::optional<wire::WideString> read(std::string_view name) const override;
    [[nodiscard]] std::optional<wire::WideString> readOf(std::string_view key, std::string_view name) const override;
    bool write(std::string_view name, const wire::WideString& value) override;

private:
    platform::SettingsStore& store_;
    std::map<std::string, wire::WideString, std::less<>> given_;
};

} // namespace desktop
