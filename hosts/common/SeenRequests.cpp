#include "hosts/common/SeenRequests.h"

#include <algorithm>

namespace common {
namespace {

// For each command. What is changed has been read shortly before.
constexpr std::ptrdiff_t kept = 64;

} // namespace

void SeenRequests::add(const protocol::Command& command, std::span<const std::uint8_t> data) {
    if (command.reply != protocol::ReplyShape::list || data.empty()) {
        return;
    }
    Seen seen{.opcode = command.opcode, .data = {data.begin(), data.end()}};
    seen_.remove(seen);
    const auto same = [&](const Seen& other) { return other.opcode == command.opcode; };
    if (std::ranges::count_if(seen_, same) >= kept) {
        const auto oldest = std::find_if(seen_.rbegin(), seen_.rend(), same);
        seen_.erase(std::next(oldest).base());
    }
    seen_.push_front(std::move(seen));
}

} // namespace common
