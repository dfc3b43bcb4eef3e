#pragma once

#include "client/CQVXAdminClass.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

namespace bench {

// The settings of a console of the server on this port.
std::shared_ptr<client::CQVXAdminClassProperties> consoleOf(std::uint16_t port);

// Runs an operation from so many consoles at once, so often in each, and gives how many there were in a second. Throws
// std::runtime_error when one of them failed.
double operationsPerSecond(std::uint16_t port, int consoles, int timesEach,
                           const std::function<bool(client::CQVXAdminClass&)>& operation);

// Runs an operation again and again from a console of its own, until the thread given back goes.
std::jthread busyConsole(std::uint16_t port, std::function<void(client::CQVXAdminClass&)> operation);

} // namespace bench
