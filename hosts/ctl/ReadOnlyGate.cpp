#include "hosts/ctl/ReadOnlyGate.h"

#include "hosts/ctl/Failure.h"

#include <string>

namespace ctl {

void ReadOnlyGate::requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) {
    if (closed_ && !onlyReads(command)) {
        throw Failure(ExitStatus::refused,
                      "The command " + std::string(command.name) +
                          " was not sent, because nothing is changed here; use \"vantrelctl run\"");
    }
    next_.requestMade(command, data);
}

bool onlyReads(const protocol::Command& command) {
    using protocol::ReplyShape;
    return command.reply == ReplyShape::list ||
           (command.reply != ReplyShape::none &&
            (command.name.starts_with("Get") || command.name.starts_with("Count") || command.name == "Login"));
}

} // namespace ctl
