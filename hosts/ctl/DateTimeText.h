#pragma once

#include "forms/DateTimePicker.h"

#include <optional>
#include <string>

namespace ctl {

// Reads "2024-12-31", "23:59", "23:59:30", "2024-12-31 23:59" and the like with seconds; "none" is no value. The outer
// optional is empty for anything else. Missing parts have the defaults of DateTime.
std::optional<std::optional<forms::DateTime>> parseDateTime(const std::string& text);

// The same way round, with the parts that the picker has.
std::string formatDateTime(const forms::DateTimeOptions& options, const std::optional<forms::DateTime>& value);

} // namespace ctl
