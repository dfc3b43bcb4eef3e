#pragma once

#include "client/CQVXAdminClass.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

namespace bench {

// The settings of a console for the server on this port.
std::shared_ptr<client::CQVXAdminClassProperties> consoleOf(std::uint16_t port);

// Runs an operation from several consoles at once, the given number of times in each, and returns the operations per
// second. Throws std::runtime_error when one of them failed.
double operationsPerSecond(std::uint16_t port, int consoles, int timesEach,
                           const std::function<bool(client::CQVXAdminClass&)>& operation);

// Repeats an operation from its own console until the returned thread is destroyed.
std::jthread busyConsole(std::uint16_t port, std::function<void(client::CQVXAdminClass&)> operation);

} // namespace bench
