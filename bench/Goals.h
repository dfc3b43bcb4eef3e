#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace bench {

// Runs the registered benchmarks, shows them, and sets what was measured beside what is wanted. Of the repetitions of
// a benchmark the fastest counts: a busy machine only ever slows one down.
class Goals : private benchmark::ConsoleReporter {
public:
    Goals() : ConsoleReporter(OO_Tabular) {}

    // Reads the options of Google Benchmark.
    void runBenchmarks(int& argc, char** argv);

    // Nanoseconds for one iteration; 0 when the benchmark was not run, and then nothing that needs it is told.
    [[nodiscard]] double time(const std::string& benchmark) const;

    // The time of one benchmark as a part of the time of another.
    void ratioAtMost(double limit, const std::string& what, const std::string& benchmark, const std::string& anchor);

    void atMost(double limit, const std::string& what, double measured, const std::string& unit);
    void atLeast(double limit, const std::string& what, double measured, const std::string& unit);

    // A program's exit status: 0 when every goal that was told is met.
    [[nodiscard]] int status() const { return missed_ == 0 ? 0 : 1; }

private:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void tell(bool met, const std::string& line);

    std::map<std::string, double> times_;
    int missed_ = 0;
};

} // namespace bench
