#include "server/inventory/InventorySample.h"

namespace server {

void addInventorySample(Estate&, SampleRandom&, int) {}

} // namespace server
