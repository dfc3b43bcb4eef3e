#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>

namespace bench {

// Runs the registered benchmarks, prints them, and compares the results with the goals. Of the repetitions of a
// benchmark the fastest counts, because a busy machine can only slow one down.
class Goals : private benchmark::ConsoleReporter {
public:
    // Processor time is for what waits for nobody: what else the machine does hardly changes it.
    enum class Time : std::uint8_t { passed, processor };

    explicit Goals(Time counted = Time::passed) : ConsoleReporter(OO_Tabular), counted_(counted) {}

    // Reads the options of Google Benchmark.
    void runBenchmarks(int& argc, char** argv);

    // Nanoseconds per iteration; 0 when the benchmark was not run, and then goals that need it are skipped.
    [[nodiscard]] double time(const std::string& benchmark) const;

    // The time of one benchmark as a fraction of the time of another.
    void ratioAtMost(double limit, const std::string& what, const std::string& benchmark, const std::string& anchor);

    void atMost(double limit, const std::string& what, double measured, const std::string& unit);
    void atLeast(double limit, const std::string& what, double measured, const std::string& unit);

    // A program's exit status: 0 when every reported goal is met.
    [[nodiscard]] int status() const { return missed_ == 0 ? 0 : 1; }

private:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void tell(bool met, const std::string& line);

    Time counted_;
    std::map<std::string, double> times_;
    int missed_ = 0;
};

} // namespace bench
