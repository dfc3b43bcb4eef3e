#include "server/drivers/DriverSample.h"

namespace server {

void addDriverSample(Estate&, SampleRandom&, int) {}

} // namespace server
