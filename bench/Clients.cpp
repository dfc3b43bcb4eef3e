#include "bench/Clients.h"

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace bench {

std::shared_ptr<client::CQVXAdminClassProperties> consoleOf(std::uint16_t port) {
    auto settings = std::make_shared<client::CQVXAdminClassProperties>();
    settings->host = "127.0.0.1";
    settings->port = port;
    return settings;
}

double operationsPerSecond(std::uint16_t port, int consoles, int timesEach,
                           const std::function<bool(client::CQVXAdminClass&)>& operation) {
    std::atomic<int> failures = 0;
    const auto begin = std::chrono::steady_clock::now();
    {
        std::vector<std::jthread> threads;
        for (int console = 0; console < consoles; ++console) {
            threads.emplace_back([&] {
                client::CQVXAdminClass client(consoleOf(port));
                for (int time = 0; time < timesEach; ++time) {
                    failures += operation(client) ? 0 : 1;
                }
            });
        }
    }
    const std::chrono::duration<double> lasted = std::chrono::steady_clock::now() - begin;
    if (failures != 0) {
        throw std::runtime_error(std::to_string(failures) + " commands from several consoles at once failed");
    }
    return consoles * timesEach / lasted.count();
}

std::jthread busyConsole(std::uint16_t port, std::function<void(client::CQVXAdminClass&)> operation) {
    return std::jthread([port, operation = std::move(operation)](const std::stop_token& stop) {
        client::CQVXAdminClass client(consoleOf(port));
        while (!stop.stop_requested()) {
            operation(client);
        }
    });
}

} // namespace bench
