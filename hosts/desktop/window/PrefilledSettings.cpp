#include "hosts/desktop/window/PrefilledSettings.h"

#include <utility>

namespace desktop {

PrefilledSettings::PrefilledSettings(platform::SettingsStore& store,
                                     std::map<std::string, wire::WideString, std::less<>> given)
    : store_(store), given_(std::move(given)) {}

bool PrefilledSettings::exists() const {
    return !given_.empty() || store_.exists();
}

std::optional<wire::WideString> PrefilledSettings::read(std::string_view name) const {
    const auto found = given_.find(name);
    return found != given_.end() ? std::optional(found->second) : store_.read(name);
}

std::optional<wire::WideString> PrefilledSettings::readOf(std::string_view key, std::string_view name) const {
    return store_.readOf(key, name);
}

bool PrefilledSettings::write(std::string_view name, const wire::WideString& value) {
    return store_.write(name, value);
}

} // namespace desktop
