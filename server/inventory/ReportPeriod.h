#pragma once

#include "wire/Text.h"

#include <optional>
#include <string>

namespace server {

// The period in which a printer must last have been seen to be in a report: two dates like "2014-03-05 17:04:09", which
// compare as texts.
struct ReportPeriod {
    std::string from;
    std::string to;

    // An empty date is no limit, and a date without a time means the whole day. Empty for a text that is not a date.
    [[nodiscard]] static std::optional<ReportPeriod> parse(wire::WideStringView from, wire::WideStringView to);

    // Whether the period ends before it begins.
    [[nodiscard]] bool isBackwards() const { return to < from; }
};

} // namespace server
