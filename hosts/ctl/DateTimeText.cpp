#include "hosts/ctl/DateTimeText.h"

#include <regex>

namespace ctl {

std::optional<std::optional<forms::DateTime>> parseDateTime(const std::string& text) {
    if (text == "none") {
        return std::optional<forms::DateTime>();
    }
    static const std::regex form(R"((?:(\d{4})-(\d\d)-(\d\d))?[ T]?(?:(\d\d):(\d\d)(?::(\d\d))?)?)");
    std::smatch parts;
    if (!std::regex_match(text, parts, form)) {
        return std::nullopt;
    }
    forms::DateTime value;
    const auto take = [&](std::size_t part, auto& field) {
        if (parts[part].matched) {
            field = static_cast<std::remove_reference_t<decltype(field)>>(std::stoi(parts[part]));
        }
    };
    take(1, value.year);
    take(2, value.month);
    take(3, value.day);
    take(4, value.hour);
    take(5, value.minute);
    take(6, value.second);
    if ((!parts[1].matched && !parts[4].matched) || !forms::isValid(value)) {
        return std::nullopt;
    }
    return std::optional<forms::DateTime>(value);
}

} // namespace ctl
