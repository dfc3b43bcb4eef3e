#pragma once

#include <stdexcept>
#include <string>

namespace ctl {

// The exit status of the program.
enum class ExitStatus : int {
    done = 0,
    refused = 1,     // by the server, by an unanswered question, or because something does not exist
    usage = 2,       // the command line is invalid
    noConnection = 3 // no server, or no login
};

// Ends the program with one clear line, in UTF-8, on standard error.
class Failure : public std::runtime_error {
public:
    Failure(ExitStatus status, const std::string& line) : std::runtime_error(line), status_(status) {}

    [[nodiscard]] ExitStatus status() const { return status_; }

private:
    ExitStatus status_;
};

} // namespace ctl
