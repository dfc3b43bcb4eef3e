#pragma once

#include "wire/Text.h"

#include <filesystem>
#include <optional>
#include <string>

namespace ctl {

// The password: the first line of the file, or else the environment variable VANTREL_PASSWORD, or else typed at the
// terminal without echo. Throws Failure (no connection) when there is none.
wire::WideString obtainPassword(const std::optional<std::filesystem::path>& file, const std::string& account);

} // namespace ctl
