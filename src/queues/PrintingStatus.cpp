#include "queues/PrintingStatus.h"

#include <array>

namespace queues {

const char16_t* printingStatusText(std::uint8_t status) {
    static constexpr std::array<const char16_t*, 5> words{u"Idle", u"Dispatcher", u"Connecting Client",
                                                          u"Client Connecting Printer", u"Printing"};
    return status < words.size() ? words[status] : u"";
}

} // namespace queues
