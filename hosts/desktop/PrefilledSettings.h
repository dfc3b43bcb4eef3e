#pragma once

#include "console/SettingsStore.h"

#include <map>
#include <string>

namespace desktop {

// Settings of which some values were given on the command line.
class PrefilledSettings final : public console::SettingsStore {
public:
    // The store outlives it; what is written goes there.
    PrefilledSettings(console::SettingsStore& store, std::map<std::string, wire::WideString, std::less<>> given);

    bool exists() const override;
    std::optional<wire::WideString> read(std::string_view name) const override;
    bool write(std::string_view name, const wire::WideString& value) override;

private:
    console::SettingsStore& store_;
    std::map<std::string, wire::WideString, std::less<>> given_;
};

} // namespace desktop
