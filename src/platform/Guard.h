#pragma once

#include <functional>
#include <string>

namespace platform {

struct Platform;

// Runs the work of a node or a form and catches whatever it throws: the failure is reported only to the platform's
// command observer and to the diagnostics log, with what `where` returns. False when the work threw.
bool guarded(const Platform& platform, const std::function<std::string()>& where, const std::function<void()>& work);

} // namespace platform
