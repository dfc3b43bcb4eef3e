#include "server/commands/Refusal.h"

namespace server {

namespace {

constexpr std::uint32_t warningIcon = 0x30; // with the one button OK
constexpr std::size_t longestQuote = 120;

} // namespace

protocol::StatusReply refusal(const wire::WideString& caption, const wire::WideString& text) {
    return {.caption = caption, .text = text, .style = warningIcon};
}

wire::WideString quoted(const wire::WideString& name) {
    wire::WideString shown = u"\"";
    for (const char16_t unit : name.substr(0, longestQuote)) {
        shown += unit < u' ' ? u' ' : unit;
    }
    return shown + (name.size() > longestQuote ? u"...\"" : u"\"");
}

} // namespace server
