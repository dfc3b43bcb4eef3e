#pragma once

#include <cstdint>
#include <string_view>

namespace snapin {

// Numbers of texts and images in the module's resources.
namespace resourceId {
constexpr std::int32_t smallImage = 101;
constexpr std::int32_t largeImage = 102;
constexpr std::int32_t description = 105;
constexpr std::int32_t provider = 106;
constexpr std::int32_t version = 107;
constexpr std::int32_t aboutIcon = 201;
constexpr std::int32_t smallOpenImage = 202;
} // namespace resourceId

// The text with that number, the same for every host; empty when there is none.
std::u16string_view stringTable(std::int32_t id);

} // namespace snapin
