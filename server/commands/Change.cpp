#include "server/commands/Change.h"

#include "server/commands/Refusal.h"
#include "wire/Text.h"

#include <spdlog/spdlog.h>

namespace server {

protocol::StatusReply databaseRefused(const char* reason) {
    spdlog::error("a change was not stored: {}", reason);
    return refusal(u"Not saved", u"The server could not store the change: " + wire::toWide(reason) + u".");
}

} // namespace server
