#include "server/rules/RuleHandlers.h"

namespace server {

std::span<const Handler> ruleHandlers() {
    return {};
}

} // namespace server
