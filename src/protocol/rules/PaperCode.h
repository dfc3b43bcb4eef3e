#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace protocol {

// A paper or a unit of area that can be priced, in the order in which they are offered. Codes are unique.
struct PaperCode {
    std::uint16_t code;
    std::u16string_view label;
};

inline constexpr std::array<PaperCode, 8> paperSizes = {
    {{9, u"A4"}, {262, u"A0"}, {263, u"A1"}, {66, u"A2"}, {8, u"A3"}, {11, u"A5"}, {5, u"Legal"}, {1, u"Letter"}}};

inline constexpr std::array<PaperCode, 5> areaUnits = {
    {{257, u"cm ²"}, {258, u"dm ²"}, {259, u"m ²"}, {260, u"in ²"}, {261, u"ft ²"}}};

} // namespace protocol
