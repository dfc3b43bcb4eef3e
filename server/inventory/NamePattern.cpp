#include "server/inventory/NamePattern.h"

#include "server/store/NameKey.h"
#include "server/store/SqlFunction.h"

namespace server {

namespace {

constexpr std::u16string_view wideBlanks = u" \t\r\n";

std::u16string_view trimmed(std::u16string_view text) {
    text = text.substr(0, text.find(u'\0')); // to a console a text ends there
    const auto from = text.find_first_not_of(wideBlanks);
    return from == std::u16string_view::npos ? std::u16string_view()
                                             : text.substr(from, text.find_last_not_of(wideBlanks) - from + 1);
}

// The units of a key.
class Units {
public:
    explicit Units(std::span<const std::uint8_t> key) : key_(key) {}
    [[nodiscard]] std::size_t size() const { return key_.size() / 2; }
    [[nodiscard]] char16_t operator[](std::size_t index) const {
        return static_cast<char16_t>(key_[2 * index] << 8 | key_[2 * index + 1]);
    }

private:
    std::span<const std::uint8_t> key_;
};

// After a unit that does not match, the last star takes one more unit.
bool fits(const Units& name, const Units& pattern) {
    constexpr auto none = static_cast<std::size_t>(-1);
    std::size_t inName = 0;
    std::size_t inPattern = 0;
    std::size_t afterStar = none;
    std::size_t starTakesTo = 0;
    while (inName < name.size()) {
        const bool more = inPattern < pattern.size();
        if (more && pattern[inPattern] == u'*') {
            afterStar = ++inPattern;
            starTakesTo = inName;
        } else if (more && (pattern[inPattern] == u'?' || pattern[inPattern] == name[inName])) {
            ++inPattern;
            ++inName;
        } else if (afterStar != none) {
            inPattern = afterStar;
            inName = ++starTakesTo;
        } else {
            return false;
        }
    }
    while (inPattern < pattern.size() && pattern[inPattern] == u'*') {
        ++inPattern;
    }
    return inPattern == pattern.size();
}

bool nameMatches(const SqlValue& name, const SqlValue& pattern) {
    if (pattern.bytes.empty()) {
        return true;
    }
    const auto widened = name.isText ? nameKey(std::u16string(name.bytes.begin(), name.bytes.end())) : Bytes();
    return fits(name.isText ? Units(widened) : Units(name.bytes), Units(pattern.bytes));
}

} // namespace

NamePattern::NamePattern(std::u16string_view typed) {
    const auto text = trimmed(typed);
    if (text.empty()) {
        return;
    }
    const bool isPiece = text.find_first_of(u"*?") == std::u16string_view::npos;
    pattern_ = nameKey(isPiece ? u"*" + std::u16string(text) + u"*" : std::u16string(text));
}

bool NamePattern::matches(std::span<const std::uint8_t> nameKey) const {
    return matchesAll() || fits(Units(nameKey), Units(pattern_));
}

NameMatching::NameMatching(sqlite3* connection) {
    addPredicate(connection, "nameMatches", &nameMatches);
}

} // namespace server
