#pragma once

#include <string>
#include <string_view>

namespace wire {

// Wide text is UTF-16 on every platform.
using WideString = std::u16string;
using WideStringView = std::u16string_view;

// Text for people: a proper Unicode conversion without the peculiarities of the wire (see unicode::UTFConverter for
// those). Anything invalid, such as a lone surrogate or a malformed sequence, becomes U+FFFD.
[[nodiscard]] std::string toUtf8(WideStringView text);
[[nodiscard]] WideString toWide(std::string_view utf8);

// Text in the 8-bit code page of the current thread: UTF-8 on POSIX, the ANSI page on Windows.
[[nodiscard]] std::string toCodePage(WideStringView text);
[[nodiscard]] WideString fromCodePage(std::string_view text);

} // namespace wire
