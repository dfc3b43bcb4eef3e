#pragma once

#include "wire/Text.h"

#include <optional>
#include <string>

namespace server {

// From when to when a printer must have been seen last to come into a report: two dates like "2014-03-05 17:04:09",
// which compare as texts.
struct ReportPeriod {
    std::string from;
    std::string to;

    // Empty dates are no limits, and a day without a time is meant as a whole. Nothing for a text that is no date.
    [[nodiscard]] static std::optional<ReportPeriod> parse(wire::WideStringView from, wire::WideStringView to);

    // The one ends before the other begins.
    [[nodiscard]] bool isBackwards() const { return to < from; }
};

} // namespace server
