#include "bench/Clients.h"
#include "bench/Folder.h"
#include "bench/Goals.h"
#include "bench/ManyRows.h"
#include "bench/MeasuredList.h"
#include "bench/SampleRecord.h"
#include "bench/ServerProcess.h"
#include "bench/WalTable.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <malloc.h>
#include <unistd.h>

// Every list of the protocol with few and with many records, and changes from one and from many consoles.
namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int fewRows = 1000;
constexpr int manyRows = 30000;
constexpr double mebibyte = 1024.0 * 1024.0;

// What a list costs: the fastest of its times, because other load can only make them longer.
struct Figures {
    std::size_t records = 0;
    double seconds = 60;
    double secondsToFirst = 60;
    double receiveCalls = 0;
    double sendCalls = 0;
    double serverMemory = 0; // in bytes, compared with before the list
    double clientMemory = 0;
    bool inOneMessage = false;

    [[nodiscard]] double perRecord() const { return seconds / double(records); }
};

void measure(const MeasuredList& list, const ManyRows& rows, const ServerProcess& server, int times, Figures& figures) {
    client::CQVXAdminClass client(consoleOf(server.port()));
    for (int time = 0; time < times; ++time) {
        const auto run = list.run(client, rows.owners());
        if (run.records < std::size_t(rows.rows())) {
            throw std::runtime_error(fmt::format("{}: {} records of {}", list.name, run.records, rows.rows()));
        }
        figures.records = run.records;
        figures.seconds = std::min(figures.seconds, run.seconds);
        figures.secondsToFirst = std::min(figures.secondsToFirst, run.secondsToFirst);
        figures.inOneMessage = run.inOneMessage;
        figures.receiveCalls = run.receiveCalls / double(run.records);
    }
}

double memoryMore(pid_t process, const std::function<void()>& action) {
    malloc_trim(0); // returns freed memory to the system, so that new use of it shows
    forgetPeakMemoryOf(process);
    const auto before = peakMemoryOf(process);
    action();
    return double(peakMemoryOf(process) - before);
}

void measureMemory(const MeasuredList& list, const ManyRows& rows, Figures& figures) {
    const ServerProcess server(rows.database());
    client::CQVXAdminClass client(consoleOf(server.port()));
    const auto run = [&] { (void)list.run(client, rows.owners()); };
    figures.serverMemory = memoryMore(server.process(), [&] { figures.clientMemory = memoryMore(getpid(), run); });
}

// The sending system calls per record of each list.
void countSendCalls(const std::vector<MeasuredList>& lists, const ManyRows& rows, const Folder& folder,
                    std::vector<Figures>& figures) {
    for (std::size_t index = 0; index < lists.size(); ++index) {
        const auto calls = folder.path() / "calls";
        {
            ServerProcess server(
                rows.database(), {},
                {"strace", "-D", "-f", "-qq", "-e", "trace=sendto,sendmsg,writev", "-o", calls.string()});
            client::CQVXAdminClass client(consoleOf(server.port()));
            (void)lists[index].run(client, rows.owners());
        }
        std::ifstream lines(calls);
        int count = 0;
        for (std::string line; std::getline(lines, line);) {
            count += line.find(" = ") != std::string::npos ? 1 : 0;
        }
        figures[index].sendCalls = double(count) / double(figures[index].records);
    }
}

void print(const std::vector<MeasuredList>& lists, const std::vector<Figures>& few, const std::vector<Figures>& many) {
    fmt::print("\n{:<27}{:>10}{:>10}{:>10}{:>8}{:>9}{:>9}{:>9}{:>9}{:>9}{:>9}\n", "", "records/s", "records/s",
               "beside", "growth", "first ms", "first ms", "receives", "sends", "server", "console");
    fmt::print("{:<27}{:>10}{:>10}{:>10}{:>8}{:>9}{:>9}{:>9}{:>9}{:>9}{:>9}\n", "list", "of 1,000", "of 30,000",
               "printers", "", "of 1,000", "of 30,000", "a record", "a record", "MiB more", "MiB more");
    for (std::size_t index = 0; index < lists.size(); ++index) {
        const auto& one = many[index];
        fmt::print("{:<27}{:>10.0f}{:>10.0f}{:>10.2f}{:>8.2f}{:>9.2f}{:>9.2f}{:>9.4f}{:>9.4f}{:>9.1f}{:>9.1f}\n",
                   lists[index].name, 1 / few[index].perRecord(), 1 / one.perRecord(),
                   one.perRecord() / many.front().perRecord(), one.perRecord() / few[index].perRecord(),
                   few[index].secondsToFirst * 1000, one.secondsToFirst * 1000, one.receiveCalls, one.sendCalls,
                   one.serverMemory / mebibyte, one.clientMemory / mebibyte);
    }
    fmt::print("\n");
    std::fflush(stdout);
}

void measureLists(const Folder& folder, Goals& goals) {
    fmt::print("Making estates with 1,000 and 30,000 rows in each list\n");
    std::fflush(stdout);
    const ManyRows small(folder.path(), fewRows);
    const ManyRows large(folder.path(), manyRows);
    const auto lists = measuredLists();
    std::vector<Figures> few(lists.size());
    std::vector<Figures> many(lists.size());
    {
        const ServerProcess ofFew(small.database());
        const ServerProcess ofMany(large.database());
        for (int round = 0; round < 9; ++round) {
            for (std::size_t index = 0; index < lists.size(); ++index) {
                measure(lists[index], small, ofFew, 10, few[index]);
                measure(lists[index], large, ofMany, 1, many[index]);
            }
        }
    }
    for (std::size_t index = 0; index < lists.size(); ++index) {
        measureMemory(lists[index], large, many[index]);
    }
    countSendCalls(lists, large, folder, many);
    print(lists, few, many);

    const auto worst = [&](const std::string& what, double limit, const std::string& unit, auto figure) {
        std::size_t found = 0;
        for (std::size_t index = 0; index < lists.size(); ++index) {
            found = figure(index) > figure(found) ? index : found;
        }
        goals.atMost(limit, fmt::format("{} ({})", what, lists[found].name), figure(found), unit);
    };
    worst("The slowest list, a record beside one of the printers", 3, "times",
          [&](std::size_t index) { return many[index].perRecord() / many.front().perRecord(); });
    // 1,000 records fit into the processor's caches and 30,000 do not; work that grows faster than the list is far
    // above the limit.
    worst("The list that grows fastest, a record of 30,000 beside one of 1,000", 2, "times", [&](std::size_t index) {
        const bool comeAlike = many[index].inOneMessage == few[index].inOneMessage;
        return comeAlike ? many[index].perRecord() / few[index].perRecord() : 0;
    });
    worst("The latest first record, as a part of the time of its list", 0.5, "times",
          [&](std::size_t index) { return many[index].secondsToFirst / many[index].seconds; });
    worst("Receive calls of the console", 0.05, "a record",
          [&](std::size_t index) { return many[index].receiveCalls; });
    worst("Send calls of the server", 0.05, "a record", [&](std::size_t index) { return many[index].sendCalls; });
    worst("Memory that a list takes in the server", 8, "MiB",
          [&](std::size_t index) { return many[index].serverMemory / mebibyte; });
}

// A unique number makes a printer's name unique in its region.
bool createPrinter(client::CQVXAdminClass& client, std::int32_t region) {
    static std::atomic<int> number = 0;
    auto printer = samplePrinter();
    printer.id.clear();
    printer.regionId = region;
    const auto digits = std::to_string(++number);
    printer.name = u"BENCH-" + wire::WideString(digits.begin(), digits.end());
    return client.createRecord({}, printer).status.caption.empty();
}

// Measures changes that survive a crash, per second.
void measureChanges(const Folder& folder, Goals& goals) {
    const ManyRows rows(folder.path(), 100);
    const ServerProcess server(rows.database());
    WalTable table(folder.path() / "anchor.db");
    const auto text = sampleInProtobuf();
    double bare = 0;
    double one = 0;
    double sixteen = 0;
    // The time that a disk takes to sync varies from moment to moment, so the measurements take turns.
    for (int round = 0; round < 5; ++round) {
        constexpr int inserts = 200;
        const auto begin = Clock::now();
        for (int insert = 0; insert < inserts; ++insert) {
            table.insert(text);
        }
        bare = std::max(bare, inserts / std::chrono::duration<double>(Clock::now() - begin).count());
        const auto create = [&](client::CQVXAdminClass& console) {
            return createPrinter(console, rows.owners().region);
        };
        one = std::max(one, operationsPerSecond(server.port(), 1, 200, create));
        sixteen = std::max(sixteen, operationsPerSecond(server.port(), 16, 25, create));
    }
    fmt::print("Changes a second: {:.0f} of one console, {:.0f} of 16; bare transactions of SQLite: {:.0f}\n", one,
               sixteen, bare);
    goals.atMost(2, "Bare transactions beside durable changes of one console", bare / one, "times");
    goals.atMost(2, "Bare transactions beside durable changes of 16 consoles", bare / sixteen, "times");
}

int run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv); // accepts the options of the other programs, which are ignored here
    const Folder folder;
    Goals goals;
    measureLists(folder, goals);
    measureChanges(folder, goals);
    return goals.status();
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    try {
        return bench::run(argc, argv);
    } catch (const std::exception& error) {
        fmt::print(stderr, "list_bench: {}\n", error.what());
    } catch (const char* text) {
        fmt::print(stderr, "list_bench: {}\n", text);
    }
    return 1;
}
