#include "server/configurations/ConfigurationSample.h"

namespace server {

void addConfigurationSample(Estate&, SampleRandom&, int) {}

} // namespace server
