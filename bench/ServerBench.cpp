#include "bench/BytePeer.h"
#include "bench/Clients.h"
#include "bench/Estate.h"
#include "bench/Folder.h"
#include "bench/Goals.h"
#include "bench/SampleRecord.h"
#include "bench/ServerProcess.h"
#include "bench/WalTable.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

// What a real vantreld and the client take for their work, beside bare sockets and bare SQLite.
namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int manyPrinters = 10000;

double secondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

void listPrinters(client::CQVXAdminClass& client, const Estate& estate, std::size_t expected) {
    std::int16_t count = 0;
    if (!client.getPrintersInRegion(estate.region(), count) || client.printerRecords().size() != expected) {
        throw std::runtime_error(fmt::format("A list has {} printers", client.printerRecords().size()));
    }
}

bool findPrinter(client::CQVXAdminClass& client, const Estate& estate) {
    std::int16_t count = 0;
    return client.getPrinterById(estate.printer(), count) && count == 1;
}

// A queue's name is free in its region when it has a number that no other has.
bool createQueue(client::CQVXAdminClass& client, const Estate& estate) {
    static std::atomic<int> number = 0;
    auto queue = samplePrinter();
    queue.id.clear();
    queue.ip.clear();
    queue.regionId = estate.region();
    queue.recordType = protocol::recordType::queue;
    const auto digits = std::to_string(++number);
    queue.name = u"BENCH-" + wire::WideString(digits.begin(), digits.end());
    return client.createRecord(estate.printer(), queue).status.caption.empty();
}

// The benchmarks that take their time by repetition.
void registerBenchmarks(const Estate& hundred, const Estate& many, const Estate& most, const ServerProcess& ofHundred,
                        const ServerProcess& ofMany, const ServerProcess& ofMost, const BytePeer& peer,
                        WalTable& table) {
    benchmark::RegisterBenchmark("listTenThousand", [&](benchmark::State& state) {
        client::CQVXAdminClass client(consoleOf(ofMany.port()));
        for (auto _ : state) {
            const auto begin = Clock::now();
            listPrinters(client, many, manyPrinters);
            state.SetIterationTime(secondsSince(begin));
            benchmark::DoNotOptimize(client.takePrinterRecords());
        }
    })->UseManualTime();
    const auto findIn = [](const Estate& estate, const ServerProcess& server) {
        return [&](benchmark::State& state) {
            client::CQVXAdminClass client(consoleOf(server.port()));
            for (auto _ : state) {
                if (!findPrinter(client, estate)) {
                    state.SkipWithError("the printer does not come");
                }
            }
        };
    };
    benchmark::RegisterBenchmark("oneOfHundred", findIn(hundred, ofHundred))->UseRealTime();
    benchmark::RegisterBenchmark("oneOfHundredThousand", findIn(most, ofMost))->UseRealTime();
    benchmark::RegisterBenchmark("oneByte", [&](benchmark::State& state) {
        for (auto _ : state) {
            if (!peer.exchange()) {
                state.SkipWithError("the byte does not come");
            }
        }
    })->UseRealTime();
    benchmark::RegisterBenchmark("create", [&](benchmark::State& state) {
        client::CQVXAdminClass client(consoleOf(ofHundred.port()));
        for (auto _ : state) {
            if (!createQueue(client, hundred)) {
                state.SkipWithError("the queue is refused");
            }
        }
    })->UseRealTime();
    benchmark::RegisterBenchmark("insert", [&](benchmark::State& state) {
        const auto text = sampleInProtobuf();
        for (auto _ : state) {
            table.insert(text);
        }
    })->UseRealTime();
}

// Calls of the system that send on a socket, for each record of one list.
double sendCallsForRecord(const Estate& estate, const std::filesystem::path& folder) {
    const auto calls = folder / "calls";
    {
        ServerProcess server(estate.database(), {},
                             {"strace", "-D", "-f", "-qq", "-e", "trace=sendto,sendmsg,writev", "-o", calls.string()});
        client::CQVXAdminClass client(consoleOf(server.port()));
        listPrinters(client, estate, manyPrinters);
    }
    std::ifstream lines(calls);
    int count = 0;
    for (std::string line; std::getline(lines, line);) {
        count += line.find(" = ") != std::string::npos ? 1 : 0;
    }
    if (count == 0) {
        throw std::runtime_error("strace saw no call that sends; is it allowed to look at a process here?");
    }
    return double(count) / manyPrinters;
}

double secondsToFirstAnswer(const Estate& estate) {
    std::array<double, 5> seconds{};
    for (auto& one : seconds) {
        const auto begin = Clock::now();
        const ServerProcess server(estate.database());
        client::CQVXAdminClass client(consoleOf(server.port()));
        if (!findPrinter(client, estate)) {
            throw std::runtime_error("The first answer does not come");
        }
        one = secondsSince(begin);
    }
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
}

// The time of a list while another console changes the estate without pause, as a part of its time in peace.
double listBesideWriter(const Estate& estate, const ServerProcess& server) {
    client::CQVXAdminClass client(consoleOf(server.port()));
    const auto fastest = [&] {
        double seconds = 60;
        for (int time = 0; time < 20; ++time) {
            const auto begin = Clock::now();
            listPrinters(client, estate, manyPrinters);
            seconds = std::min(seconds, secondsSince(begin));
        }
        return seconds;
    };
    const double inPeace = fastest();
    const auto writer = busyConsole(server.port(), [&](client::CQVXAdminClass& busy) { createQueue(busy, estate); });
    return fastest() / inPeace;
}

int run(int argc, char** argv) {
    const Folder folder;
    fmt::print("Making estates with 100, 10,000 and 100,000 printers\n");
    std::fflush(stdout);
    const Estate hundred(folder.path(), 100);
    const Estate many(folder.path(), manyPrinters);
    const Estate most(folder.path(), 100000);
    Goals goals;
    {
        const ServerProcess ofHundred(hundred.database());
        const ServerProcess ofMany(many.database());
        const ServerProcess ofMost(most.database());
        const BytePeer peer;
        WalTable table(folder.path() / "anchor.db");
        registerBenchmarks(hundred, many, most, ofHundred, ofMany, ofMost, peer, table);
        goals.runBenchmarks(argc, argv);

        if (goals.time("listTenThousand") > 0) {
            goals.atLeast(400000, "List 10,000 printers", manyPrinters * 1e9 / goals.time("listTenThousand"),
                          "records a second");
        }
        client::CQVXAdminClass client(consoleOf(ofMany.port()));
        listPrinters(client, many, manyPrinters);
        goals.atMost(0.05, "Receive calls of the client",
                     double(client.transport->counts().receiveCalls) / manyPrinters, "a record");
        goals.ratioAtMost(2, "A command with one record, beside one byte there and back", "oneOfHundred", "oneByte");
        goals.ratioAtMost(2, "A durable create, beside a bare insert", "create", "insert");
        goals.ratioAtMost(1.2, "One record of 100,000, beside one of 100", "oneOfHundredThousand", "oneOfHundred");
        goals.atLeast(
            2000, "Commands with one record from 8 consoles at once",
            operationsPerSecond(ofHundred.port(), 8, 1000,
                                [&](client::CQVXAdminClass& console) { return findPrinter(console, hundred); }),
            "a second");
        goals.atMost(30, "Resident memory with 10,000 printers", double(ofMany.residentMemory()) / (1024 * 1024),
                     "MiB");
        goals.atMost(2, "A list while another console writes, beside one in peace", listBesideWriter(many, ofMany),
                     "times");
    }
    goals.atMost(0.05, "Send calls of the server", sendCallsForRecord(many, folder.path()), "a record");
    goals.atMost(0.2, "Start to first answer with 10,000 printers", secondsToFirstAnswer(many), "s");
    return goals.status();
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    try {
        return bench::run(argc, argv);
    } catch (const std::exception& error) {
        fmt::print(stderr, "server_bench: {}\n", error.what());
    } catch (const char* text) {
        fmt::print(stderr, "server_bench: {}\n", text);
    }
    return 1;
}
