#include "server/commands/Change.h"

#include "server/commands/Refusal.h"
#include "server/log/Log.h"
#include "wire/Text.h"

namespace server {

protocol::StatusReply databaseRefused(const char* reason) {
    log::error("a change was not stored", reason);
    return refusal(u"Not saved", u"The server could not store the change: " + wire::toWide(reason) + u".");
}

} // namespace server
