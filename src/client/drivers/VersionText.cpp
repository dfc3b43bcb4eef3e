#include "client/drivers/VersionText.h"

#include "wire/WireDate.h"

namespace client {

wire::WideString localVersionText(const wire::WideString& version) {
    constexpr auto none = wire::WideString::npos;
    constexpr auto parentheses = u"()";
    if (version.find_first_of(parentheses) == none) {
        return version;
    }
    // The pieces between parentheses, from the last to the first; the text before the first one counts too.
    for (std::size_t end = version.size(); end != none;) {
        const std::size_t before = end == 0 ? none : version.find_last_of(parentheses, end - 1);
        const std::size_t start = before == none ? 0 : before + 1;
        bool isDate = false;
        const auto shown = wire::formatWireDate(wire::toCodePage(version.substr(start, end - start)), &isDate);
        if (isDate) {
            return version.substr(0, start) + wire::fromCodePage(shown) + version.substr(end);
        }
        end = before;
    }
    return version;
}

} // namespace client
