#pragma once

#include "wire/Text.h"

#include <filesystem>
#include <optional>

namespace ctl {

// The password: the first line of the file, else the environment variable VANTREL_PASSWORD, else what is typed at the
// terminal without being shown. Throws Failure (no connection) when there is none to be had.
wire::WideString obtainPassword(const std::optional<std::filesystem::path>& file);

} // namespace ctl
