#include "server/rules/WriteChecks.h"

namespace server {

using protocol::StatusReply;
using wire::WideString;

namespace {

constexpr std::size_t longestId = 64; // consoles make ids of 36 characters

} // namespace

StatusReply ruleRefused(const WideString& text) {
    return refusal(u"Rule not changed", text);
}

Refused refuseId(const WideString& word, const std::string& id) {
    if (id.empty()) {
        return ruleRefused(u"The " + word + u" has no id.");
    }
    if (id.size() > longestId) {
        return ruleRefused(u"The id of the " + word + u" is too long.");
    }
    return std::nullopt;
}

Refused refuseId(const WideString& word, const wire::Uuid& id) {
    return id.is_nil() ? std::optional(ruleRefused(u"The " + word + u" has no id.")) : std::nullopt;
}

Refused refuseName(const WideString& word, const WideString& name) {
    // To a console a text ends at its first zero, so a name that begins with one is empty there.
    if (name.empty() || name.front() == u'\0') {
        return ruleRefused(u"The " + word + u" needs a name.");
    }
    return std::nullopt;
}

Refused refuseFrameSize(const WideString& word, std::size_t size) {
    if (size > largestReceivableFrame) {
        return ruleRefused(u"The texts of the " + word + u" are too long to be sent back in one piece.");
    }
    return std::nullopt;
}

Refused refuseAction(const WideString& word, std::uint8_t action, bool isThere) {
    if (action == protocol::ruleWriteAction::add && isThere) {
        return ruleRefused(u"There is a " + word + u" with this id already.");
    }
    if (action == protocol::ruleWriteAction::update && !isThere) {
        return isGone(word);
    }
    return std::nullopt;
}

StatusReply isGone(const WideString& word) {
    return ruleRefused(u"There is no such " + word + u" any more.");
}

} // namespace server
