#include "wire/Text.h"

namespace wire {

std::string toCodePage(WideStringView text) {
    return toUtf8(text);
}

WideString fromCodePage(std::string_view text) {
    return toWide(text);
}

} // namespace wire
