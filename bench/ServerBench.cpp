#include "bench/BytePeer.h"
#include "bench/Clients.h"
#include "bench/Estate.h"
#include "bench/Folder.h"
#include "bench/Goals.h"
#include "bench/SampleRecord.h"
#include "bench/ServerProcess.h"
#include "bench/WalTable.h"
#include "client/Exchange.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

// The time that a real vantreld and the client take, compared with bare sockets and bare SQLite.
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

// A unique number makes a queue's name unique in its region.
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

// The benchmarks that the library times by repetition.
void registerBenchmarks(const Estate& hundred, const Estate& many, const Estate& most, const ServerProcess& ofHundred,
                        const ServerProcess& ofMany, const ServerProcess& ofMost, const BytePeer& peer) {
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
}

// The lower quartile: other load can only make a time longer.
double undisturbed(std::vector<double>& values) {
    std::ranges::sort(values);
    return values[values.size() / 4];
}

// The time of a create relative to that of a bare insert. The time that a disk takes to sync varies from moment to
// moment, so the two take turns.
double createBesideInsert(const Estate& estate, const ServerProcess& server, WalTable& table) {
    constexpr int rounds = 100;
    client::CQVXAdminClass client(consoleOf(server.port()));
    const auto text = sampleInProtobuf();
    std::vector<double> creates;
    std::vector<double> inserts;
    for (int round = 0; round < rounds; ++round) {
        auto begin = Clock::now();
        table.insert(text);
        inserts.push_back(secondsSince(begin));
        begin = Clock::now();
        if (!createQueue(client, estate)) {
            throw std::runtime_error("A queue is refused");
        }
        creates.push_back(secondsSince(begin));
    }
    return undisturbed(creates) / undisturbed(inserts);
}

// The client's receiving calls per record of one list.
double receiveCallsForRecord(const Estate& estate, const ServerProcess& server) {
    client::CQVXAdminClass client(consoleOf(server.port()));
    client::Exchange exchange(client, protocol::commandOf<protocol::ListPrinterRecordsRequest>());
    if (!exchange.connect()) {
        throw std::runtime_error("No connection");
    }
    exchange.send(protocol::makeDataMessage(protocol::ListPrinterRecordsRequest{
        .printerId = {}, .regionId = estate.region(), .mode = protocol::printerListMode::printersInRegion}));
    const auto count = client::Exchange::readCount(*exchange.receive());
    for (int record = 0; record < count; ++record) {
        if (!exchange.receive()) {
            throw std::runtime_error("The list broke off");
        }
    }
    return double(exchange.transport().counts().receiveCalls) / count;
}

// The sending system calls per record of one list.
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
    std::vector<double> seconds;
    for (int start = 0; start < 5; ++start) {
        const auto begin = Clock::now();
        const ServerProcess server(estate.database());
        client::CQVXAdminClass client(consoleOf(server.port()));
        if (!findPrinter(client, estate)) {
            throw std::runtime_error("The first answer does not come");
        }
        seconds.push_back(secondsSince(begin));
    }
    return undisturbed(seconds);
}

// The time of a list while another console keeps changing the estate, relative to its time without that.
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
        registerBenchmarks(hundred, many, most, ofHundred, ofMany, ofMost, peer);
        goals.runBenchmarks(argc, argv);

        if (goals.time("listTenThousand") > 0) {
            goals.atLeast(400000, "List 10,000 printers", manyPrinters * 1e9 / goals.time("listTenThousand"),
                          "records a second");
        }
        goals.atMost(0.05, "Receive calls of the client", receiveCallsForRecord(many, ofMany), "a record");
        goals.ratioAtMost(2, "A command with one record, beside one byte there and back", "oneOfHundred", "oneByte");
        goals.atMost(2, "A durable create, beside a bare insert", createBesideInsert(hundred, ofHundred, table),
                     "times");
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
