#include "wire/Text.h"

#include <windows.h>

namespace wire {

// The platform's wchar_t is the unit of WideString.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::string toCodePage(WideStringView text) {
    const auto* const units = reinterpret_cast<const wchar_t*>(text.data());
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_THREAD_ACP, 0, units, length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_THREAD_ACP, 0, units, length, result.data(), needed, nullptr, nullptr);
    return result;
}

WideString fromCodePage(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0);
    WideString result(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, reinterpret_cast<wchar_t*>(result.data()), needed);
    return result;
}

} // namespace wire
