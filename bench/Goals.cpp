#include "bench/Goals.h"

#include <fmt/format.h>

#include <cstdio>
#include <sstream>

namespace bench {

void Goals::runBenchmarks(int& argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks(this);
    fmt::print("\n");
}

double Goals::time(const std::string& benchmark) const {
    const auto found = times_.find(benchmark);
    return found == times_.end() ? 0 : found->second;
}

void Goals::ratioAtMost(double limit, const std::string& what, const std::string& benchmark,
                        const std::string& anchor) {
    const double measured = time(benchmark);
    const double beside = time(anchor);
    if (measured > 0 && beside > 0) {
        const double ratio = measured / beside;
        tell(ratio <= limit, fmt::format("{}: {:.0f} ns beside {:.0f} ns, ratio {:.3f} (at most {})", what, measured,
                                         beside, ratio, limit));
    }
}

void Goals::atMost(double limit, const std::string& what, double measured, const std::string& unit) {
    tell(measured <= limit, fmt::format("{}: {:.4g} {} (at most {})", what, measured, unit, limit));
}

void Goals::atLeast(double limit, const std::string& what, double measured, const std::string& unit) {
    tell(measured >= limit, fmt::format("{}: {:.0f} {} (at least {})", what, measured, unit, limit));
}

bool Goals::ReportContext(const Context& context) {
    // The library's remarks about the machine and its own build go to standard error, where they would look like
    // errors.
    std::ostringstream ignored;
    std::ostream& errors = GetErrorStream();
    SetErrorStream(&ignored);
    const bool goOn = ConsoleReporter::ReportContext(context);
    SetErrorStream(&errors);
    return goOn;
}

void Goals::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred) {
            continue;
        }
        const double seconds = counted_ == Time::passed ? run.real_accumulated_time : run.cpu_accumulated_time;
        const double time = seconds * 1e9 / static_cast<double>(run.iterations);
        const auto [entry, isNew] = times_.try_emplace(run.run_name.function_name, time);
        if (!isNew && time < entry->second) {
            entry->second = time;
        }
    }
}

void Goals::tell(bool met, const std::string& line) {
    missed_ += met ? 0 : 1;
    fmt::print("{:<7}{}\n", met ? "met" : "MISSED", line);
    std::fflush(stdout);
}

} // namespace bench
