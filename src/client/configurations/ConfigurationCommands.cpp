#include "client/configurations/ConfigurationCommands.h"

namespace client {}
