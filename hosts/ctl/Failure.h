#pragma once

#include <stdexcept>
#include <string>

namespace ctl {

// What the program ends with.
enum class ExitStatus : int {
    done = 0,
    refused = 1,     // by the server, by a question that nobody answered, or because something is not there
    usage = 2,       // the command line makes no sense
    noConnection = 3 // no server, or no login
};

// Ends the program with one clear line, in UTF-8, on standard error.
class Failure : public std::runtime_error {
public:
    Failure(ExitStatus status, const std::string& line) : std::runtime_error(line), status_(status) {}

    ExitStatus status() const { return status_; }

private:
    ExitStatus status_;
};

} // namespace ctl
