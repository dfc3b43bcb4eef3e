#pragma once

#include "diagnostics/LoggerI.h"

#include <filesystem>
#include <functional>
#include <string>

namespace common {

// The diagnostics log of a user: a file of the user's own to which lines are appended, created with the first one.
// Neither the file nor its folder may be a link, and nobody else can read them. Used by one thread at a time.
class DiagnosticsLog final : public QvxDiagnostics::LoggerI {
public:
    // Calls complain once, with one line in UTF-8, when the file can't be opened; nothing is written then.
    DiagnosticsLog(std::filesystem::path file, std::function<void(const std::string&)> complain);
    DiagnosticsLog(const DiagnosticsLog&) = delete;
    DiagnosticsLog& operator=(const DiagnosticsLog&) = delete;
    ~DiagnosticsLog() override;

    // vantrel/mmc_log.txt in the user's state folder; empty when the user has none.
    static std::filesystem::path defaultPath();

    void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
             std::string_view level, std::string_view message, const std::vector<std::string>& tags) override;

private:
    bool opened();

    const std::filesystem::path file_;
    std::function<void(const std::string&)> complain_;
    int descriptor_ = -1;
    bool tried_ = false;
};

// Adds the user's log to the loggers of the program, until it exits.
void installDiagnosticsLog(std::function<void(const std::string&)> complain);

} // namespace common
