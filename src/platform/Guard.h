#pragma once

#include <functional>
#include <string>

namespace platform {

struct Platform;

// Runs the work of a node or a form and lets nothing that it throws get out: the failure goes to the platform's command
// observer and to the diagnostics log, with what `where` answers, and nobody else hears of it. False when there was
// one.
bool guarded(const Platform& platform, const std::function<std::string()>& where, const std::function<void()>& work);

} // namespace platform
