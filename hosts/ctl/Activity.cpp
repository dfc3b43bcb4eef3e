#include "hosts/ctl/Activity.h"

#include "hosts/ctl/Failure.h"

#include <nlohmann/json.hpp>

#include <array>
#include <ctime>

namespace ctl {
namespace {

std::string nameOf(client::CommandOutcome outcome) {
    static constexpr std::array<const char*, 4> names{"running", "done", "failed", "cancelled"};
    return names[static_cast<std::size_t>(outcome)];
}

// As 2024-12-31T23:59:59Z.
std::string timeText(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

} // namespace

Activity::Activity(const std::filesystem::path& file) : stream_(file, std::ios::app | std::ios::binary) {
    if (!stream_) {
        throw Failure(ExitStatus::refused, "The activity file " + file.string() + " can't be written");
    }
}

void Activity::commandEnded(const client::CommandReport& report) {
    using std::chrono::duration;
    const auto started = std::chrono::system_clock::now() -
                         std::chrono::duration_cast<std::chrono::system_clock::duration>(report.duration);
    const nlohmann::ordered_json line{
        {"time", timeText(started)},
        {"opcode", report.opcode},
        {"name", report.name},
        {"target", report.target},
        {"summary", report.summary},
        {"bytes_sent", report.bytesSent},
        {"bytes_received", report.bytesReceived},
        {"records", report.records},
        {"duration_ms", duration<double, std::milli>(report.duration).count()},
        {"outcome", nameOf(report.outcome)},
        {"text", report.text},
    };
    stream_ << line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n' << std::flush;
}

} // namespace ctl
