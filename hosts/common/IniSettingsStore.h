#pragma once

#include "platform/SettingsStore.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace common {

// Settings in a small INI file that only its owner may read. It can store any text. An invalid file (cut off, not
// UTF-8, written by something else) has no values; the first write then keeps it beside the new one, with ".bad"
// appended to its name.
class IniSettingsStore final : public platform::SettingsStore {
public:
    explicit IniSettingsStore(std::filesystem::path file);

    // vantrel/admin.ini below $XDG_CONFIG_HOME, or below .config in the user's home.
    static std::filesystem::path defaultPath();

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    [[nodiscard]] bool exists() const override;
    [[nodiscard]] std::optional<wire::WideString> read(std::string_view name) const override;
    // Replaces the file as a whole, and makes its folder if needed. A name is letters, digits, "_", "-" and "."; others
    // are not stored.
    bool write(std::string_view name, const wire::WideString& value) override;

private:
    std::filesystem::path file_;
};

} // namespace common
