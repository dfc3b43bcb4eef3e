#include "client/rules/RuleCommands.h"

namespace client {}
