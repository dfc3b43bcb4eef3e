#include "server/rules/RuleSample.h"

namespace server {

void addRuleSample(Estate&, SampleRandom&, int) {}

} // namespace server
