#include "server/Commands.h"
#include "server/Options.h"
#include "server/PortFile.h"
#include "server/SampleEstate.h"
#include "server/Schema.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "server/log/Log.h"
#include "server/login/Accounts.h"
#include "server/service/MemoryReserve.h"
#include "server/service/Server.h"
#include "wire/Text.h"

#include <boost/asio/signal_set.hpp>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>
#include <thread>

namespace {

using namespace server;

constexpr int failureStatus = 1;
constexpr rlim_t wantedDescriptors = 4096; // for sockets and for the connections of readers

// Called where the libraries can't pass on an exception because memory ran out: ends like any other failure. Whatever
// was acknowledged is on disk.
[[noreturn]] void endWithoutMemory() {
    constexpr std::string_view text = "vantreld: there is no memory left\n";
    [[maybe_unused]] const auto ignored = ::write(STDERR_FILENO, text.data(), text.size());
    ::_exit(failureStatus);
}

void prepareProcess() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow makes the write fail
    MemoryReserve::install();
    std::set_terminate(&endWithoutMemory);
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < wantedDescriptors) {
        limit.rlim_cur = std::min(limit.rlim_max, wantedDescriptors);
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
    server::log::toStandardError();
}

void fillSample(const Store& store, const Sample& sample) {
    const auto connection = store.openConnection();
    connection->change([&] {
        if (!connection->table<RegionTable>().isEmpty() || !connection->table<RecordTable>().isEmpty()) {
            throw std::runtime_error(store.file().string() + ": --sample needs an empty database");
        }
        SampleEstate filler(*connection);
        if (sample.printers == 0) {
            filler.fillSmall();
        } else {
            filler.fill(sample.printers);
        }
        return true;
    });
}

void serve(const Options& options) {
    const auto password = options.user ? readPassword(options.passwordFile) : std::u16string();
    const Store store(options.database, schema());
    if (options.sample) {
        fillSample(store, *options.sample);
    }
    Accounts accounts(store);
    if (options.user) {
        accounts.save(wire::toWide(*options.user), password);
    }

    ServerSettings settings;
    settings.listen = options.listen;
    settings.port = options.port;
    settings.loginRequired = options.loginRequired;
    Server server(store, accounts, commands(), settings);

    // Signals have a thread of their own, so that they are handled whatever the server is doing.
    boost::asio::io_context signalContext;
    boost::asio::signal_set signals(signalContext, SIGTERM, SIGINT);
    signals.async_wait([&](const boost::system::error_code& error, int) {
        if (!error) {
            server.stop();
        }
    });
    const std::jthread waiting([&] { signalContext.run(); });

    try {
        if (options.portFile) {
            writePortFile(*options.portFile, server.port());
        }
        server::log::info("listening on " + options.listen + " port " + std::to_string(server.port()));
        server.run();
    } catch (...) {
        signalContext.stop();
        throw;
    }
    signalContext.stop();
    server::log::info("ended");
}

} // namespace

int main(int count, char** arguments) {
    const auto [options, text, exitStatus] = Options::parse(count, arguments);
    if (!options) {
        (exitStatus == 0 ? std::cout : std::cerr) << text << (text.ends_with('\n') ? "" : "\n");
        return exitStatus;
    }
    try {
        prepareProcess();
        serve(*options);
    } catch (const std::exception& error) {
        std::cerr << "vantreld: " << error.what() << "\n";
        return failureStatus;
    }
    return 0;
}
