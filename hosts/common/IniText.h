#pragma once

#include "wire/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace common {

// The text of an INI file with one section, as lines. A line is empty, a comment (";" or "#"), a section's head
// ("[...]"), or name=value. In a value "\\" is a backslash and "\u" with four hexadecimal digits one UTF-16 unit; this
// is how blanks at the ends, control characters and lone surrogates are written. The rest is UTF-8.
class IniText {
public:
    // Empty when the text does not have this form.
    static std::optional<IniText> parse(std::string_view text);
    [[nodiscard]] std::string text() const;

    [[nodiscard]] std::optional<wire::WideString> value(std::string_view name) const;
    // Keeps the order of the lines, and comments. False for a name that can't stand in the file.
    bool setValue(std::string_view name, const wire::WideString& value);

private:
    struct Line {
        std::string text; // as in the file
        std::string name; // empty for a line without a value
        wire::WideString value;
    };

    std::vector<Line> lines_;
};

} // namespace common
